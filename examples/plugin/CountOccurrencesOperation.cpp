#include "CountOccurrencesOperation.h"

#include "Occurrences.h"
#include "Operand.h"

#include "VariableScope.h"

#include <QDataStream>
#include <QMessageLogger>

#include <new>

namespace {

enum CaseMode { MatchCase, IgnoreCase };
enum Range { WholeText, Beginning };

/// Stands first in a record, behind that of the base class. Raise it when a field is added.
constexpr quint16 recordVersion = 1;

/// The choices one by one, which is how they are translated: lupdate cannot see them in class info.
[[maybe_unused]] const char *const choices[] = {
    QT_TRANSLATE_NOOP("CountOccurrencesOperation", "区分大小写"),
    QT_TRANSLATE_NOOP("CountOccurrencesOperation", "忽略大小写"),
    QT_TRANSLATE_NOOP("CountOccurrencesOperation", "整个文本"),
    QT_TRANSLATE_NOOP("CountOccurrencesOperation", "开头若干字符"),
};

/// Logs one line with the tag of the operation, and without a place in the sources, which no user
/// has. When not even the memory for a line is left there is none.
void warn(const QString &what) noexcept
{
    try {
        QMessageLogger(nullptr, 0, nullptr, "default")
            .warning("[CountOccurrences] %s", what.toUtf8().constData());
    } catch (...) {
    }
}

/// A variable as users write it, nothing when there is none yet.
QString shownVariable(const QString &name)
{
    return name.isEmpty() || name.startsWith(QLatin1Char('$')) ? name : QLatin1Char('$') + name;
}

} // namespace

CountOccurrencesOperation::CountOccurrencesOperation(QObject *parent)
    : Operation(parent)
{
}

QString CountOccurrencesOperation::root() const
{
    return tr("统计");
}

QString CountOccurrencesOperation::typeId() const
{
    return QStringLiteral("count.occurrences");
}

QString CountOccurrencesOperation::typeName() const
{
    return tr("统计出现次数");
}

QString CountOccurrencesOperation::icon() const
{
    return QStringLiteral(":/count/count_occurrences.svg");
}

QString CountOccurrencesOperation::toString() const
{
    // All values at once: one arg after the other would fill markers in the user's own text.
    return QStringLiteral("%1: %2 in %3 -> %4")
        .arg(typeName(), m_searchText, m_sourceText, shownVariable(m_resultVar));
}

QString CountOccurrencesOperation::description() const
{
    return tr("统计 %1 在 %2 中出现的次数，存入 %3")
        .arg(m_searchText, m_sourceText, shownVariable(m_resultVar));
}

void CountOccurrencesOperation::doOperation() const
{
    if (!scope)
        return;
    if (m_resultVar.isEmpty()) {
        warn(QStringLiteral("未指定结果变量，已跳过"));
        return;
    }
    // Nothing may be thrown into the host, and memory is the one thing that can run out here.
    try {
        run();
    } catch (const std::bad_alloc &) {
        warn(QStringLiteral("文本过大，已跳过"));
    }
}

void CountOccurrencesOperation::run() const
{
    if (m_caseMode != MatchCase && m_caseMode != IgnoreCase) {
        warn(QStringLiteral("未知大小写方式 %1，已跳过").arg(m_caseMode));
        return;
    }
    QString text = operandText(m_sourceText, *scope);
    if (!takeRange(&text))
        return;
    const auto sensitivity = m_caseMode == IgnoreCase ? Qt::CaseInsensitive : Qt::CaseSensitive;
    store(occurrences(text, operandText(m_searchText, *scope), sensitivity));
}

/// Cuts the text down to what is to be searched. False, after a warning, when that is not known.
bool CountOccurrencesOperation::takeRange(QString *text) const
{
    if (m_range == WholeText)
        return true;
    if (m_range != Beginning) {
        warn(QStringLiteral("未知统计范围 %1，已跳过").arg(m_range));
        return false;
    }
    const std::optional<double> count = operandNumber(m_charCount, *scope);
    if (!count || !(*count >= 0)) { // the second is true of "nan", too
        warn(QStringLiteral("字符数无效，已跳过"));
        return false;
    }
    if (*count < text->size())
        text->truncate(static_cast<int>(*count));
    return true;
}

/// Writes the number in the form that the variable is declared for; one that cannot hold it is left
/// alone, with a warning. This is the last thing a run does, so that a failure leaves no trace.
void CountOccurrencesOperation::store(int count) const
{
    switch (scope->typeOf(m_resultVar)) {
    case VarType::Int:
        scope->set(m_resultVar, count);
        return;
    case VarType::Double:
        scope->set(m_resultVar, static_cast<double>(count));
        return;
    case VarType::String:
        scope->set(m_resultVar, QString::number(count));
        return;
    case VarType::Bool:
        scope->set(m_resultVar, count > 0);
        return;
    case VarType::None:
        warn(QStringLiteral("变量 \"%1\" 未声明，已跳过").arg(m_resultVar));
        return;
    default: // lists, tables, and what a newer host may have
        warn(QStringLiteral("变量 \"%1\" 不能存放数值，已跳过").arg(m_resultVar));
    }
}

void CountOccurrencesOperation::saveOperation(QDataStream &stream) const
{
    Operation::saveOperation(stream);
    stream << recordVersion;
    stream << m_sourceText << m_searchText << m_caseMode << m_range << m_charCount << m_resultVar;
}

void CountOccurrencesOperation::loadOperation(QDataStream &stream)
{
    Operation::loadOperation(stream);
    quint16 version = 0;
    stream >> version;
    if (version != recordVersion) {
        stream.setStatus(QDataStream::ReadCorruptData);
        return;
    }
    stream >> m_sourceText >> m_searchText >> m_caseMode >> m_range >> m_charCount >> m_resultVar;
}

Operation *CountOccurrencesOperation::clone(QObject *parent) const
{
    auto *copy = new CountOccurrencesOperation(parent);
    copy->m_sourceText = m_sourceText;
    copy->m_searchText = m_searchText;
    copy->m_caseMode = m_caseMode;
    copy->m_range = m_range;
    copy->m_charCount = m_charCount;
    copy->m_resultVar = m_resultVar;
    copy->baseState = baseState;
    return copy;
}
