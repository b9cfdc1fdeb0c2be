#pragma once

#include "lists/sequenced_list.h"

namespace lists {

/// The order in which the family's members are shown and printed. Members come and go on the Person screen.
class FamilySequence : public SequencedList {
    Q_OBJECT

public:
    FamilySequence(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace);

    [[nodiscard]] static const ListDefinition& list();

protected:
    [[nodiscard]] std::unique_ptr<EditDialog> makeDialog() override;
};

}  // namespace lists
