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
