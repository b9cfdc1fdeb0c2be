#include "lists/asset_liquidation.h"

#include "session/session.h"

using namespace Qt::StringLiterals;

namespace lists {

namespace {

const ListDefinition assetList{
    .window = u"frmAssetLiquidation"_s,
    .caption = u"Asset Liquidation Information"_s,
    .table = u"AssetLiquidation"_s,
    .rowLines = 3,
    .shares = {0.001, 0.07, 0.28, 0.615},
    .form = {u"frmAssetLiqEdit"_s,
             u"Asset Liquidation Edit Screen"_s,
             {{.name = txtSequence, .label = u"Sequence:"_s, .gridColumn = 1},
              {.name = u"txtAsset"_s,
               .label = u"Asset:"_s,
               .gridColumn = 2,
               .stored = u"Asset"_s,
               .ampersands = Ampersands::DoubledInTable},
              {.name = u"txtDirections"_s,
               .label = u"Directions:"_s,
               .gridColumn = 3,
               .stored = u"Directions"_s,
               .ampersands = Ampersands::DoubledInTable,
               .kind = EditField::Kind::Memo}}},
    .select = u"Select ID, Seq, Asset, Directions from AssetLiquidation Order By Seq"_s,
    .closesTree = true,
};

const RequiredText requiredAsset{
    u"txtAsset"_s, u"Invalid Asset Information"_s,
    u"The Asset field is empty.  An asset must be entered in order to have it saved into the grid."_s};

}  // namespace

AssetLiquidation::AssetLiquidation(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace)
    : SequencedList(desktop, session, workspace, assetList) {}

const ListDefinition& AssetLiquidation::list() {
    return assetList;
}

std::unique_ptr<EditDialog> AssetLiquidation::makeDialog() {
    return std::make_unique<SequencedDialog>(desktop(), assetList.form, session().gConnection, sequence(),
                                             requiredAsset);
}

}  // namespace lists
