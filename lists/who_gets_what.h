#pragma once

#include "lists/list_screen.h"

namespace lists {

/// The family's things and the people whom they are meant for.
class WhoGetsWhat : public ListScreen {
    Q_OBJECT

public:
    WhoGetsWhat(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace);

    [[nodiscard]] static const ListDefinition& list();

protected:
    [[nodiscard]] std::unique_ptr<EditDialog> makeDialog() override;
};

}  // namespace lists
