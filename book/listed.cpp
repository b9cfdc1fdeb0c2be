#include "book/listed.h"

#include "lists/family_sequence.h"
#include "lists/list_catalogue.h"

namespace book {

const lists::ListDefinition* listed(QStringView window) {
    const lists::ListDefinition& members = lists::FamilySequence::list();
    return window == members.window ? &members : lists::listDefinition(window);
}

}  // namespace book
