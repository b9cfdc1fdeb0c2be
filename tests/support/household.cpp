#include "tests/support/household.h"

#include <QJsonArray>
#include <QJsonObject>

#include "data/template.h"
#include "tests/support/database_file.h"
#include "tests/support/kinbook_program.h"

using namespace Qt::StringLiterals;

namespace support {

Household::Household() : user(hurriedKinbook(path())) {
    data::createTemplate(path(u"FamilyInfo.mdb"_s));
    write(u"SplashDef.txt"_s, "CompanyName=Larkmoor\r\nProductName=Kinbook\r\nValue=\r\nSplash=1\r\n");
}

void Household::exec(const QString& statement) const {
    support::exec(path(u"FamilyInfo.mdb"_s), statement);
}

QString Household::cell(const QString& statement) const {
    return support::cell(path(u"FamilyInfo.mdb"_s), statement);
}

void Household::addMembers(const QStringList& legalNames) const {
    int seq = 0;
    for (const QString& name : legalNames) {
        exec(u"INSERT INTO Person (LegalName, Seq, Sex) VALUES ('%1', %2, 'F')"_s
                 .arg(QString(name).replace(u'\'', u"''"_s))
                 .arg(++seq));
    }
}

void Household::startFor(const QString& selection) {
    user.start();
    user.pick(u"MDIHost.cbPerson"_s, selection);
}

QString Household::dismissBox() {
    const QString title = boxTitle();
    user.answer(u"OK"_s);
    return title;
}

QString Household::told() {
    const QString words = boxTitle() + u": "_s + boxText();
    user.answer(u"OK"_s);
    return words;
}

void Household::openFor(const QString& selection, const QString& node) {
    startFor(selection);
    openNode(node);
}

void Household::openFor(const QStringList& members, const QString& selection, const QString& node) {
    addMembers(members);
    openFor(selection, node);
}

void Household::save(const QString& box, const QString& text) {
    user.fill(box, text);
    user.click(u"cmdUpdate"_s);
}

void Household::add(const QString& box, const QString& text) {
    user.click(u"cmdAdd"_s);
    save(box, text);
}

void Household::change(const QString& box, const QString& text) {
    user.click(u"cmdEdit"_s);
    save(box, text);
}

void Household::saveUnchanged() {
    user.click(u"cmdEdit"_s);
    user.click(u"cmdUpdate"_s);
}

void Household::cancelEdit() {
    user.click(u"cmdEdit"_s);
    user.click(u"cmdCancel"_s);
}

void Household::deleteRecord() {
    user.click(u"cmdDelete"_s);
    user.answer(u"Yes"_s);
}

QString Household::focus() {
    return user.state()["focus"_L1].toString();
}

bool Household::is(const QString& control, const char* what) {
    return user.control(control)[QLatin1StringView(what)].toBool();
}

int Household::selected(const QString& control) {
    return user.control(control)["selLength"_L1].toInt();
}

QStringList Household::items(const QString& combo) {
    return user.control(combo)["items"_L1].toVariant().toStringList();
}

QStringList Household::rows(const QString& view) {
    QStringList lines;
    const QJsonArray found = user.grid(view)["rows"_L1].toArray();
    for (const QJsonValue& row : found)
        lines << row.toVariant().toStringList().join(u'|');
    return lines;
}

int Household::personID() {
    return user.session()["gPersonID"_L1].toInt();
}

QString Household::attachKey() {
    return user.session()["gvAttachKey"_L1].toString();
}

QString Household::selectedNode() {
    QStringList keys;
    const QJsonArray nodes = user.tree()["nodes"_L1].toArray();
    for (const QJsonValue& node : nodes) {
        if (node["selected"_L1].toBool()) keys << node["key"_L1].toString();
    }
    return keys.join(u' ');
}

bool Household::running() {
    return user.state()["running"_L1].toBool();
}

QString Household::activeWindow() {
    return user.state()["active"_L1].toString();
}

QStringList Household::forms() {
    return user.state()["forms"_L1].toVariant().toStringList();
}

int Household::image(const QString& key) {
    const QJsonArray nodes = user.tree()["nodes"_L1].toArray();
    for (const QJsonValue& node : nodes) {
        if (node["key"_L1].toString() == key) return node["image"_L1].toInt();
    }
    return -1;
}

bool Household::treeEnabled() {
    return user.tree()["enabled"_L1].toBool();
}

void Household::openNode(const QString& key) {
    const QJsonArray nodes = user.tree()["nodes"_L1].toArray();
    int index = 0;
    for (const QJsonValue& node : nodes) {
        if (node["key"_L1].toString() == key) index = node["index"_L1].toInt();
    }
    QStringList above;
    while (index > 0) {
        index = nodes[index - 1]["parent"_L1].toInt();
        if (index > 0) above.prepend(nodes[index - 1]["key"_L1].toString());
    }
    for (const QString& branch : above)
        user.expand(branch);
    user.node(key);
}

}  // namespace support
