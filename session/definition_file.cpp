#include "session/definition_file.h"

#include <algorithm>
#include <array>

#include "data/cipher.h"
#include "platform/base/conversions.h"
#include "platform/base/files.h"
#include "platform/base/runtime_error.h"

using namespace Qt::StringLiterals;

namespace session {

namespace {

struct Key {
    QLatin1StringView text;
    QString Definition::*value;
};

constexpr std::array<Key, 14> keys{{
    {"CompanyName="_L1, &Definition::gsCompanyName},
    {"NameFontSize="_L1, &Definition::gsNameFontSize},
    {"ProductName="_L1, &Definition::gsProductName},
    {"Version="_L1, &Definition::gsVersion},
    {"Copyright="_L1, &Definition::gsCopyright},
    {"Company="_L1, &Definition::gsCompany},
    {"Slogan="_L1, &Definition::gsSlogan},
    {"Address="_L1, &Definition::gsAddress},
    {"City="_L1, &Definition::gsCity},
    {"State="_L1, &Definition::gsState},
    {"Zip="_L1, &Definition::gsZip},
    {"Phone="_L1, &Definition::gsPhone},
    {"SupportPhone="_L1, &Definition::gsSupportPhone},
    {"Value="_L1, &Definition::gsMainPassword},
}};

constexpr auto splashKey = "Splash="_L1;

bool readLine(Definition& definition, const QString& line) {
    for (const Key& key : keys) {
        if (!line.startsWith(key.text)) continue;
        definition.*key.value = line.mid(key.text.size());
        return true;
    }
    if (!line.startsWith(splashKey)) return false;
    definition.giSplashSeconds = platform::toInteger(platform::val(line.mid(splashKey.size())));
    return true;
}

}  // namespace

std::optional<Definition> readDefinition(const QString& path) {
    Definition definition;
    const QStringList lines = platform::files::readLines(path);
    for (const QString& line : lines) {
        if (!readLine(definition, line)) return std::nullopt;
    }
    definition.gsMainPassword = data::cipher(definition.gsMainPassword);
    return definition;
}

std::optional<qsizetype> lineBreakIn(const QString& password) {
    const QString enciphered = data::cipher(password);
    const auto breaksLine = [](QChar c) { return c == u'\r' || c == u'\n' || c.isNull(); };
    const auto found = std::ranges::find_if(enciphered, breaksLine);
    if (found == enciphered.end()) return std::nullopt;
    return found - enciphered.begin();
}

void writeDefinition(const QString& path, const Definition& definition) {
    // Such a line couldn't be read back, and the program wouldn't start any more.
    if (lineBreakIn(definition.gsMainPassword)) throw platform::RuntimeError(platform::Error::InvalidCall);
    Definition written = definition;
    written.gsMainPassword = data::cipher(definition.gsMainPassword);
    QString text;
    for (const Key& key : keys)
        text += key.text + written.*key.value + u"\r\n"_s;
    platform::files::writeTextFile(path, text);
}

}  // namespace session
