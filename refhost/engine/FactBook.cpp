#include "refhost/engine/FactBook.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/JsonFile.h"
#include "refhost/engine/JsonValue.h"
#include "refhost/engine/LanguageName.h"
#include "refhost/engine/NameIndex.h"
#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/OperationSchema.h"
#include "refhost/engine/PluginFolder.h"
#include "refhost/engine/PropertyRole.h"

#include "Operation.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <array>

namespace {

using MaybeProblem = std::optional<Problem>;

struct PurposeWord
{
    const char *word;
    Purpose purpose;
    PropertyRole role; ///< of the properties that may have it
};

constexpr std::array<PurposeWord, 5> purposeWords{{
    {"searchText", Purpose::SearchText, PropertyRole::Text},
    {"marker", Purpose::Marker, PropertyRole::Text},
    {"separator", Purpose::Separator, PropertyRole::Text},
    {"start", Purpose::Start, PropertyRole::Number},
    {"numberText", Purpose::NumberText, PropertyRole::Text},
}};

QString memberPlace(const QString &place, const QString &key)
{
    return place.isEmpty() ? key : place + QLatin1Char('.') + key;
}

Problem unfit(const QString &place, const JsonValue &found, const QString &expected)
{
    return {Problem::Reason::UnfitValue,
            {},
            place,
            EngineText::tr("%1; expected %2").arg(jsonText(found), expected)};
}

Problem unknownKey(const QString &place, const QStringList &known)
{
    return {Problem::Reason::UnknownKey,
            {},
            place,
            withSuggestion(EngineText::tr("unknown key; expected %1").arg(listText(known)),
                           nearestName(place.section(QLatin1Char('.'), -1), known))};
}

// The facts about one property: each key has a reader.

struct FactPlace
{
    const OperationSchema &schema;
    const PropertySchema &property;
    QString place; ///< of the value
};

MaybeProblem readPurpose(const JsonValue &value, const FactPlace &at, PropertyFacts &facts)
{
    QStringList words;
    for (const PurposeWord &candidate : purposeWords) {
        if (candidate.role != roleOf(at.property))
            continue;
        words.append(jsonText(QString::fromLatin1(candidate.word)));
        if (value.toString() == QLatin1String(candidate.word)) {
            facts.purpose = candidate.purpose;
            return std::nullopt;
        }
    }
    if (words.isEmpty())
        words.append(EngineText::tr("no purpose for this property"));
    return unfit(at.place, value, choiceText(words));
}

MaybeProblem readSearchedIn(const JsonValue &value, const FactPlace &at, PropertyFacts &facts)
{
    const PropertySchema *const source = at.schema.property(value.toString());
    if (!source || roleOf(*source) != PropertyRole::Text || source->name == at.property.name)
        return unfit(at.place, value, EngineText::tr("the property with the text searched in"));
    facts.searchedIn = source->name;
    return std::nullopt;
}

MaybeProblem readNumber(const JsonValue &value, const FactPlace &at, PropertyRole role,
                        const QString &expected, std::optional<double> &number)
{
    if (!value.isNumber() || roleOf(at.property) != role)
        return unfit(at.place, value, expected);
    number = value.toDouble();
    return std::nullopt;
}

MaybeProblem readWhenEmpty(const JsonValue &value, const FactPlace &at, PropertyFacts &facts)
{
    return readNumber(value, at, PropertyRole::Number,
                      EngineText::tr("a number, at a numeric operand"), facts.whenEmpty);
}

MaybeProblem readWhenNotFound(const JsonValue &value, const FactPlace &at, PropertyFacts &facts)
{
    return readNumber(value, at, PropertyRole::Result,
                      EngineText::tr("a number, at the result variable"), facts.whenNotFound);
}

struct FactKey
{
    const char *key;
    MaybeProblem (*read)(const JsonValue &, const FactPlace &, PropertyFacts &);
};

constexpr std::array<FactKey, 4> factKeys{{
    {"purpose", readPurpose},
    {"searchedIn", readSearchedIn},
    {"whenEmpty", readWhenEmpty},
    {"whenNotFound", readWhenNotFound},
}};

MaybeProblem readFact(const QString &key, const JsonValue &value, const FactPlace &at,
                      PropertyFacts &facts)
{
    QStringList known;
    for (const FactKey &candidate : factKeys) {
        if (key == QLatin1String(candidate.key))
            return candidate.read(value, at, facts);
        known.append(QLatin1String(candidate.key));
    }
    return unknownKey(at.place, known);
}

MaybeProblem readProperty(const JsonValue &json, const FactPlace &at, PropertyFacts &facts)
{
    if (!json.isObject())
        return wrongKind(at.place, json, EngineText::tr("an object"));
    const JsonObject keys = json.toObject();
    for (const JsonMember &member : keys) {
        const FactPlace inner{at.schema, at.property, memberPlace(at.place, member.key)};
        if (auto problem = readFact(member.key, member.value, inner, facts))
            return problem;
    }
    return std::nullopt;
}

// The explanations.

/// Returns the marker that stands for variable part `number`, counted from 1.
QString markerOf(int number)
{
    return QLatin1Char('%') + QString::number(number);
}

/// Returns the pieces of a line around "%1", "%2" and so on, which have to stand in this order.
QStringList piecesOf(const QString &line)
{
    QStringList pieces;
    int start = 0;
    for (int number = 1;; ++number) {
        const int place = line.indexOf(markerOf(number), start);
        if (place < 0)
            break;
        pieces.append(line.mid(start, place - start));
        start = place + markerOf(number).size();
    }
    pieces.append(line.mid(start));
    return pieces;
}

/// Returns the first marker in `text` that is beyond the variable parts of the line.
QString surplusMarker(const QString &text, int parts)
{
    static const QRegularExpression marker(QStringLiteral("%([0-9]+)"));
    auto match = marker.globalMatch(text);
    while (match.hasNext()) {
        const QRegularExpressionMatch next = match.next();
        const int number = next.captured(1).toInt();
        if (number < 1 || number > parts)
            return next.captured();
    }
    return {};
}

Result<WarningExplanation> explanationFromJson(const JsonValue &value, const QString &place)
{
    if (!value.isObject())
        return wrongKind(place, value, EngineText::tr("an object"));
    const JsonObject json = value.toObject();
    const QString lineKey = QStringLiteral("line");
    const JsonValue line = json.value(lineKey);
    if (!line.isString() || line.toString().isEmpty())
        return wrongKind(memberPlace(place, lineKey), line, EngineText::tr("a string"));
    WarningExplanation explanation{piecesOf(line.toString()), {}};
    for (const JsonMember &member : json) {
        if (member.key == lineKey)
            continue;
        const QString textPlace = memberPlace(place, member.key);
        if (!isLanguageName(member.key))
            return unknownKey(textPlace, {lineKey, EngineText::tr("the name of a language")});
        if (!member.value.isString())
            return wrongKind(textPlace, member.value, EngineText::tr("a string"));
        const QString surplus =
            surplusMarker(member.value.toString(), explanation.pieces.size() - 1);
        if (!surplus.isEmpty())
            return unfit(textPlace, surplus, EngineText::tr("a marker that the line has, too"));
        explanation.texts.insert(member.key, member.value.toString());
    }
    const QString english = QStringLiteral("en");
    if (!explanation.texts.contains(english)) {
        return wrongKind(memberPlace(place, english), JsonValue(), EngineText::tr("a string"));
    }
    return explanation;
}

Result<QList<WarningExplanation>> explanationsFromJson(const JsonValue &value, const QString &place)
{
    QList<WarningExplanation> explanations;
    if (value.isUndefined())
        return explanations;
    if (!value.isArray())
        return wrongKind(place, value, EngineText::tr("an array"));
    const JsonArray array = value.toArray();
    for (int i = 0; i < array.size(); ++i) {
        auto explanation =
            explanationFromJson(array.at(i), QStringLiteral("%1[%2]").arg(place).arg(i));
        if (!explanation)
            return explanation.problem();
        explanations.append(explanation.value());
    }
    return explanations;
}

/// Returns the variable parts of `line` if it is made of these pieces. Of several ways to place a
/// middle piece the first counts.
std::optional<QStringList> partsOf(const QString &line, const QStringList &pieces)
{
    if (pieces.size() == 1)
        return line == pieces.first() ? std::optional(QStringList()) : std::nullopt;
    if (!line.startsWith(pieces.first()))
        return std::nullopt;
    QStringList parts;
    int start = pieces.first().size();
    for (int i = 1; i < pieces.size() - 1; ++i) {
        const int place = line.indexOf(pieces.at(i), start);
        if (place < 0)
            return std::nullopt;
        parts.append(line.mid(start, place - start));
        start = place + pieces.at(i).size();
    }
    const int end = line.size() - pieces.last().size();
    if (end < start || !line.endsWith(pieces.last()))
        return std::nullopt;
    parts.append(line.mid(start, end - start));
    return parts;
}

QString shortened(const QString &text)
{
    constexpr int limit = 60;
    if (text.size() <= limit)
        return text;
    return text.left(text.at(limit - 1).isHighSurrogate() ? limit - 1 : limit) +
           QStringLiteral("…");
}

/// Replaces the markers in one pass, so that markers within the parts stay as they are.
QString filled(const QString &pattern, const QStringList &parts)
{
    QString text;
    int start = 0;
    static const QRegularExpression marker(QStringLiteral("%([0-9]+)"));
    auto match = marker.globalMatch(pattern);
    while (match.hasNext()) {
        const QRegularExpressionMatch next = match.next();
        text += pattern.mid(start, next.capturedStart() - start) +
                shortened(parts.value(next.captured(1).toInt() - 1));
        start = next.capturedEnd();
    }
    return text + pattern.mid(start);
}

QString inLanguage(const QMap<QString, QString> &texts, const QStringList &languages)
{
    for (const QString &language : languages) {
        const QStringList names = languageAndParents(language);
        for (const QString &name : names) {
            if (texts.contains(name))
                return texts.value(name);
        }
    }
    return texts.value(QStringLiteral("en"));
}

QStringList typesOf(const LoadedPlugin &plugin)
{
    QStringList types;
    for (const auto &prototype : plugin.prototypes())
        types.append(prototype->typeId());
    return types;
}

} // namespace

std::optional<Problem> FactBook::addOperations(const JsonObject &json,
                                               const OperationCatalog &catalog,
                                               const QStringList &typeIds)
{
    for (const JsonMember &member : json) {
        const QString place = QStringLiteral("operations.") + member.key;
        if (!typeIds.contains(member.key)) {
            const QString message =
                EngineText::tr("no such operation; expected %1").arg(listText(typeIds));
            return Problem{Problem::Reason::UnknownType,
                           {},
                           place,
                           withSuggestion(message, nearestName(member.key, typeIds))};
        }
        if (!member.value.isObject())
            return wrongKind(place, member.value, EngineText::tr("an object"));
        const OperationSchema schema(*catalog.find(member.key)->prototype);
        const JsonObject properties = member.value.toObject();
        for (const JsonMember &property : properties) {
            const PropertySchema *const known = schema.property(property.key);
            const QString propertyPlace = memberPlace(place, property.key);
            if (!known)
                return unknownKey(propertyPlace, schema.propertyNames());
            PropertyFacts &facts = m_properties[member.key][property.key];
            if (auto problem = readProperty(property.value, {schema, *known, propertyPlace}, facts))
                return problem;
        }
    }
    return std::nullopt;
}

Result<FactBook> FactBook::read(const OperationCatalog &catalog)
{
    FactBook book;
    for (const LoadedPlugin &plugin : catalog.plugins()) {
        const QString file = fileBeside(plugin.path(), QStringLiteral(".facts.json"));
        if (!QFileInfo::exists(file))
            continue;
        const Result<JsonObject> json = readJsonObject(file);
        if (!json)
            return json.problem();
        if (auto problem = book.add(json.value(), catalog, typesOf(plugin))) {
            problem->file = file;
            return *problem;
        }
    }
    return book;
}

std::optional<Problem> FactBook::add(const JsonObject &json, const OperationCatalog &catalog,
                                     const QStringList &typeIds)
{
    const QString operationsKey = QStringLiteral("operations");
    const QString warningsKey = QStringLiteral("warnings");
    for (const QString &key : json.keys()) {
        if (key != operationsKey && key != warningsKey)
            return unknownKey(key, {operationsKey, warningsKey});
    }
    const JsonValue operations = json.value(operationsKey);
    if (!operations.isUndefined() && !operations.isObject())
        return wrongKind(operationsKey, operations, EngineText::tr("an object"));
    if (auto problem = addOperations(operations.toObject(), catalog, typeIds))
        return problem;
    const auto explanations = explanationsFromJson(json.value(warningsKey), warningsKey);
    if (!explanations)
        return explanations.problem();
    for (const QString &typeId : typeIds)
        m_explanations.insert(typeId, explanations.value());
    return std::nullopt;
}

PropertyFacts FactBook::property(const QString &typeId, const QString &name) const
{
    return m_properties.value(typeId).value(name);
}

QList<WarningExplanation> FactBook::explanations(const QString &typeId) const
{
    return m_explanations.value(typeId);
}

std::optional<ExplainedLine> FactBook::explain(const QString &typeId, const QString &line,
                                               const QStringList &languages) const
{
    const QList<WarningExplanation> known = explanations(typeId);
    for (const WarningExplanation &explanation : known) {
        if (const auto parts = partsOf(line, explanation.pieces)) {
            return ExplainedLine{explanation.pieces.join(QLatin1Char('%')),
                                 filled(inLanguage(explanation.texts, languages), *parts)};
        }
    }
    return std::nullopt;
}
