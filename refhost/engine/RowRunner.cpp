#include "refhost/engine/RowRunner.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/Excerpt.h"
#include "refhost/engine/JsonReader.h"
#include "refhost/engine/JsonValue.h"
#include "refhost/engine/MemberTexts.h"
#include "refhost/engine/RowValue.h"
#include "refhost/engine/StepGuard.h"
#include "refhost/engine/TaskProblem.h"

#include "Operation.h"

#include <QTextCodec>

#include <new>
#include <utility>

namespace {

QString lineName(qint64 line)
{
    return EngineText::tr("line %1").arg(line);
}

Problem unfitRow(qint64 line, const QString &message)
{
    return {Problem::Reason::UnfitValue, {}, lineName(line), message};
}

Problem memberProblem(Problem problem, const QString &name, qint64 line)
{
    problem.place = lineName(line) + QLatin1String(", ") + excerpt(jsonText(name));
    return problem;
}

Problem extraKeys(const QStringList &names, const QStringList &known, qint64 line)
{
    Problem problem = unknownVariables(lineName(line), names, known);
    problem.message +=
        EngineText::tr("; \"--extra ignore\" drops such keys, \"--extra keep\" prints them");
    return problem;
}

/// The text of UTF-8 bytes, a byte order mark included; null when they are not UTF-8.
std::optional<QString> textFromUtf8(const QByteArray &bytes)
{
    static const QTextCodec *const codec = QTextCodec::codecForName("UTF-8");
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    QString text = codec->toUnicode(bytes.constData(), bytes.size(), &state);
    if (state.invalidChars != 0 || state.remainingChars != 0)
        return std::nullopt;
    return text;
}

} // namespace

/// The members of a row as they are written, one after the other. Their texts are looked up for the
/// first that is asked for.
class RowMembers
{
public:
    explicit RowMembers(const QByteArray &row)
        : m_row(row)
    {
    }

    void next() { ++m_current; }

    /// Returns the member that `next` was last called for.
    MemberText current()
    {
        if (m_texts.isEmpty())
            m_texts = memberTexts(m_row);
        return m_texts.value(m_current);
    }

private:
    const QByteArray &m_row;
    QVector<MemberText> m_texts;
    int m_current = -1;
};

RowRunner::RowRunner(Task task, const RowFormat &format)
    : m_task(std::move(task))
    , m_format(format)
    , m_scope(m_task.startScope())
    , m_start(m_task.variables)
{
    for (TaskVariable &variable : m_start) {
        variable.value = m_scope.get(variable.name);
    }
    if (m_format.printed.isEmpty())
        m_format.printed = m_scope.names();
    m_format.printed.removeDuplicates();
    char before = '{';
    for (const QString &name : qAsConst(m_format.printed)) {
        m_keys.append(before + jsonText(name).toUtf8() + ':');
        before = ',';
    }
    for (const auto &step : m_task.steps)
        step->setVariableScope(&m_scope);
}

RowOutcome RowRunner::run(const QByteArray &row, qint64 line)
{
    RowOutcome outcome;
    try {
        reset();
        outcome.problem = take(row, line);
        if (outcome.problem)
            return outcome;
        runSteps(outcome);
        if (outcome.failedSteps > 0 && m_format.endsAtFailedStep)
            return outcome;
        Result<QByteArray> written = output(line);
        if (written)
            outcome.output = written.value();
        else
            outcome.problem = written.problem();
    } catch (const std::bad_alloc &) {
        outcome.problem = unfitRow(line, EngineText::tr("the row does not fit into memory"));
    }
    return outcome;
}

void RowRunner::reset()
{
    m_extra.clear();
    for (const TaskVariable &variable : qAsConst(m_start))
        m_scope.set(variable.name, variable.value);
}

std::optional<Problem> RowRunner::take(const QByteArray &row, qint64 line)
{
    return m_format.lineVariable.isEmpty() ? takeObject(row, line) : takeText(row, line);
}

std::optional<Problem> RowRunner::takeObject(const QByteArray &row, qint64 line)
{
    std::optional<Problem> unfit;
    RowMembers members(row);
    QStringList extraNames;
    const auto take = [&](const QString &name, const JsonValue &json) {
        members.next();
        const VarType type = m_scope.typeOf(name);
        if (type == VarType::None) {
            extraNames.append(name);
            if (m_format.extra == RowFormat::Extra::Keep)
                m_extra += ',' + members.current().key + ':' + members.current().value;
        } else if (!unfit) {
            unfit = takeMember(name, json, type, members, line);
        }
    };
    if (auto malformed = parseJsonMembers(row, line, take))
        return malformed;
    if (!extraNames.isEmpty() && m_format.extra == RowFormat::Extra::Refuse)
        return extraKeys(extraNames, m_scope.names(), line);
    return unfit;
}

std::optional<Problem> RowRunner::takeMember(const QString &name, const JsonValue &json,
                                             VarType type, RowMembers &members, qint64 line)
{
    const Result<QVariant> value =
        variantFromRow(json, type, [&] { return members.current().value; });
    if (!value)
        return memberProblem(value.problem(), name, line);
    m_scope.set(name, value.value());
    return std::nullopt;
}

std::optional<Problem> RowRunner::takeText(const QByteArray &row, qint64 line)
{
    const std::optional<QString> text = textFromUtf8(row);
    if (!text)
        return unfitRow(line, EngineText::tr("bytes that are no text; expected UTF-8"));
    const QString &name = m_format.lineVariable;
    const Result<QVariant> value = variantFromText(*text, m_scope.typeOf(name));
    if (!value) {
        Problem problem = value.problem();
        problem.place = lineName(line);
        return problem;
    }
    m_scope.set(name, value.value());
    return std::nullopt;
}

void RowRunner::runSteps(RowOutcome &outcome)
{
    int index = 0;
    for (const auto &step : m_task.steps) {
        runStep(*step, index++, outcome);
        if (outcome.failedSteps > 0 && m_format.endsAtFailedStep)
            return;
    }
}

void RowRunner::runStep(const Operation &step, int index, RowOutcome &outcome)
{
    const std::optional<QString> failure = runGuarded(step, index);
    const QStringList lines = m_capture.takeLines();
    for (const QString &line : lines)
        outcome.warnings.append({index, step.typeId(), line});
    if (failure) {
        outcome.warnings.append({index, step.typeId(), *failure, true});
        ++outcome.failedSteps;
    }
}

Result<QByteArray> RowRunner::output(qint64 line) const
{
    if (m_format.plainText)
        return plainOutput(line);
    QByteArray object;
    for (int i = 0; i < m_keys.size(); ++i) {
        object += m_keys.at(i);
        appendJsonText(object, m_scope.get(m_format.printed.at(i)));
    }
    if (m_keys.isEmpty())
        return '{' + m_extra.mid(1) + '}';
    return object + m_extra + '}';
}

Result<QByteArray> RowRunner::plainOutput(qint64 line) const
{
    const QString &name = m_format.printed.first();
    const JsonValue value = variantToJson(m_scope.get(name));
    const QByteArray text = (value.isString() ? value.toString() : jsonText(value)).toUtf8();
    if (text.contains('\n')) {
        return unfitRow(line, EngineText::tr("the value of %1 has a line break; expected one line, "
                                             "or \"--json\" to print it as JSON")
                                  .arg(jsonText(name)));
    }
    return text;
}
