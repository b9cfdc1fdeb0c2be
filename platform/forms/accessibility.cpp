#include "platform/forms/accessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHeaderView>
#include <QMdiSubWindow>

#include "platform/forms/child_accessible.h"
#include "platform/forms/combo_accessible.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/data_grid.h"
#include "platform/forms/form_window.h"
#include "platform/forms/list_view.h"
#include "platform/forms/status_accessible.h"
#include "platform/forms/status_line.h"
#include "platform/forms/table_accessible.h"

namespace platform {

namespace {

/// The account of a widget; nullptr where the toolkit's own says all.
QAccessibleInterface* account(const QString& /*className*/, QObject* object) {
    if (auto* grid = qobject_cast<DataGrid*>(object)) return new TableAccessible(*grid, *grid->horizontalHeader());
    if (auto* list = qobject_cast<ListView*>(object)) return new TableAccessible(*list, *list->header());
    if (auto* combo = qobject_cast<ComboBox*>(object)) return new ComboAccessible(*combo);
    if (auto* status = qobject_cast<StatusLine*>(object)) return new StatusAccessible(*status);
    if (auto* frame = qobject_cast<QMdiSubWindow*>(object)) return new ChildAccessible(*frame);
    auto* form = qobject_cast<FormWindow*>(object);
    if (form && form->isDialog()) return new QAccessibleWidget(form, QAccessible::Dialog);
    return nullptr;
}

}  // namespace

void installAccessibility() {
    QAccessible::installFactory(account);
}

}  // namespace platform
