#pragma once

#include "lists/sequenced_list.h"

namespace lists {

/// What is to be sold or settled, in which order, and how.
class AssetLiquidation : public SequencedList {
    Q_OBJECT

public:
    AssetLiquidation(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace);

    [[nodiscard]] static const ListDefinition& list();

protected:
    [[nodiscard]] std::unique_ptr<EditDialog> makeDialog() override;
};

}  // namespace lists
