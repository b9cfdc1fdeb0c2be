#include "app/shown_rows.h"

#include <algorithm>

#include "app/category_nodes.h"
#include "data/tables.h"
#include "lists/list_catalogue.h"
#include "screens/catalogue/catalogue.h"
#include "screens/catalogue/screen_fields.h"

using namespace Qt::StringLiterals;

namespace app {

namespace {

using session::ShownRows;

/// The fields that hold something to read: a check box only says yes or no.
std::vector<data::Column> readable(const auto& columns) {
    std::vector<data::Column> kept;
    std::ranges::copy_if(columns, std::back_inserter(kept), [](const data::Column& column) {
        return column.isStored() && column.shownIn != data::ShownIn::Nowhere && column.kind != data::FieldKind::YesNo;
    });
    return kept;
}

ShownRows rowsOf(const screens::ScreenDefinition& screen, const QString& category) {
    ShownRows rows{.window = screen.name,
                   .category = category,
                   .table = &data::table(QString(screen.table)),
                   .columns = readable(screens::screenFields(screen)),
                   .attachmentPrefix = screen.attachmentPrefix};
    if (screen.shared) {
        rows.typeColumn = "Type"_L1;
        rows.type = screen.shared->type;
    }
    return rows;
}

ShownRows rowsOf(const lists::ListDefinition& list, const QString& category) {
    const data::Table& table = data::table(list.table);
    return {.window = list.window,
            .category = category,
            .table = &table,
            .columns = readable(table.columns),
            .attachmentPrefix = list.attachmentPrefix.isEmpty() ? QString() : list.attachmentPrefix + u'_',
            .inGrid = true};
}

void addChildren(std::vector<ShownRows>& all, const screens::ScreenDefinition& site, const QString& category) {
    for (const screens::ChildOffer& offer : site.children) {
        const screens::ScreenDefinition& child = screens::childScreens()[static_cast<std::size_t>(offer.kind)];
        ShownRows rows = rowsOf(child, category + u", "_s + child.table);
        rows.typeColumn = "TypeID"_L1;
        rows.type = site.parentType;
        rows.siteWindow = site.name;
        rows.siteTable = &data::table(QString(site.table));
        all.push_back(std::move(rows));
    }
}

void addCategory(std::vector<ShownRows>& all, const CategoryNode& node) {
    const QString window = node.opens;
    if (window.isEmpty() || std::ranges::find(all, window, &ShownRows::window) != all.end()) return;
    if (const screens::ScreenDefinition* screen = screens::screenDefinition(window)) {
        all.push_back(rowsOf(*screen, node.text));
        addChildren(all, *screen, node.text);
    } else if (const lists::ListDefinition* list = lists::listDefinition(window)) {
        all.push_back(rowsOf(*list, node.text));
    }
}

std::vector<ShownRows> gather() {
    std::vector<ShownRows> all;
    for (const CategoryNode& node : categoryNodes())
        addCategory(all, node);
    const screens::ScreenDefinition& coverPage = *screens::screenDefinition(u"frmCoverPage");
    all.push_back(rowsOf(coverPage, coverPage.title));
    return all;
}

}  // namespace

std::span<const ShownRows> shownRows() {
    static const std::vector<ShownRows> all = gather();
    return all;
}

}  // namespace app
