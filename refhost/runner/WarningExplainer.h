#pragma once

#include "refhost/engine/FactBook.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

class Console;
class OperationCatalog;

/// Prints the explanations of warning lines that come with the plug-ins, each below its line. Reads
/// them when the first line is explained; a file that cannot be used gets one message, and its
/// lines stay without an explanation.
class WarningExplainer
{
public:
    /// The explanations are in the first of `languages` that they are written in, otherwise in
    /// English. The catalogue and the console have to outlive the explainer.
    WarningExplainer(const OperationCatalog &catalog, QStringList languages,
                     const Console &console);

    /// Prints the explanation of `line`, which a step of the type logged, behind `indent`; nothing
    /// if there is none.
    void explain(const QString &typeId, const QString &line, const QString &indent = {});

    /// The same, unless this explanation has been printed already.
    void explainOnce(const QString &typeId, const QString &line);

    /// The same, unless a line of this kind has been explained already, whatever its variable
    /// parts.
    void explainKindOnce(const QString &typeId, const QString &line);

private:
    std::optional<ExplainedLine> find(const QString &typeId, const QString &line);
    void print(const ExplainedLine &explained, const QString &indent) const;
    void printNew(const ExplainedLine &explained, const QString &key);

    const OperationCatalog &m_catalog;
    QStringList m_languages;
    const Console &m_console;
    std::optional<FactBook> m_book; ///< once it is read
    QSet<QString> m_printed;
};
