#pragma once

#include "refhost/engine/JsonTypes.h"
#include "refhost/engine/Result.h"

#include <QHash>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

class OperationCatalog;

/// What the step uses a text or a number for.
enum class Purpose {
    Unknown,
    SearchText, ///< a text that is searched for, character by character
    Marker,     ///< a text that is searched for, next to which a text is cut
    Separator,  ///< a text that is searched for, at which a text is taken apart
    Start,      ///< a position in a text
    NumberText  ///< a text that the step reads as a number
};

/// Facts about a property that its annotations do not tell.
struct PropertyFacts
{
    Purpose purpose = Purpose::Unknown;
    QString searchedIn; ///< the property with the text in which this one is searched for
    std::optional<double> whenEmpty;    ///< a numeric operand: the number used if it is empty
    std::optional<double> whenNotFound; ///< a result: its value if the search text is not found
};

/// The explanation of a warning line.
struct WarningExplanation
{
    QStringList pieces; ///< the line without its variable parts: what stands before, between and
                        ///< after these
    QMap<QString, QString> texts; ///< by language; "%1" is the first variable part
};

/// An explanation of one line, and the kind of line it belongs to.
struct ExplainedLine
{
    QString kind; ///< equal for all lines with the same explanation
    QString text;
};

/// Facts about the operations of plug-ins and explanations of their warning lines: for a plug-in
/// "libX.so" the file "libX.facts.json" beside it.
class FactBook
{
public:
    /// Reads the files of all plug-ins of the catalogue; a plug-in without one has no facts. An
    /// operation or property that the plug-in does not have, an unknown key and a value of the
    /// wrong kind are problems.
    static Result<FactBook> read(const OperationCatalog &catalog);

    /// Returns the facts about a property; default values if there are none.
    PropertyFacts property(const QString &typeId, const QString &name) const;

    /// Returns the explanation of a line that a step of the type logged, in the first of
    /// `languages` (in order of preference) that it is written in, otherwise in English. Long
    /// variable parts are shortened. Nothing if the line has no explanation.
    std::optional<ExplainedLine> explain(const QString &typeId, const QString &line,
                                         const QStringList &languages) const;

    /// Returns the explanations for steps of the type.
    QList<WarningExplanation> explanations(const QString &typeId) const;

private:
    std::optional<Problem> add(const JsonObject &json, const OperationCatalog &catalog,
                               const QStringList &typeIds);
    std::optional<Problem> addOperations(const JsonObject &json, const OperationCatalog &catalog,
                                         const QStringList &typeIds);

    QHash<QString, QHash<QString, PropertyFacts>> m_properties;
    QHash<QString, QList<WarningExplanation>> m_explanations; ///< by type
};
