#include "refhost/runner/WarningExplainer.h"

#include "refhost/runner/Console.h"
#include "refhost/runner/OneLine.h"
#include "refhost/runner/RunnerText.h"

#include <utility>

WarningExplainer::WarningExplainer(const OperationCatalog &catalog, QStringList languages,
                                   const Console &console)
    : m_catalog(catalog)
    , m_languages(std::move(languages))
    , m_console(console)
{
}

std::optional<ExplainedLine> WarningExplainer::find(const QString &typeId, const QString &line)
{
    if (!m_book) {
        const Result<FactBook> book = FactBook::read(m_catalog);
        if (!book)
            m_console.complain(book.problem().toString());
        m_book = book ? book.value() : FactBook();
    }
    return m_book->explain(typeId, line, m_languages);
}

void WarningExplainer::explain(const QString &typeId, const QString &line, const QString &indent)
{
    if (const auto explained = find(typeId, line))
        print(*explained, indent);
}

void WarningExplainer::explainOnce(const QString &typeId, const QString &line)
{
    if (const auto explained = find(typeId, line))
        printNew(*explained, explained->text);
}

void WarningExplainer::explainKindOnce(const QString &typeId, const QString &line)
{
    if (const auto explained = find(typeId, line))
        printNew(*explained, explained->kind);
}

void WarningExplainer::printNew(const ExplainedLine &explained, const QString &key)
{
    if (m_printed.contains(key))
        return;
    m_printed.insert(key);
    print(explained, {});
}

void WarningExplainer::print(const ExplainedLine &explained, const QString &indent) const
{
    m_console.note(indent + oneLine(QStringLiteral("  ") +
                                    RunnerText::tr("what it means: %1").arg(explained.text)));
}
