#include "refhost/engine/TaskUnpacker.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/PackedForm.h"
#include "refhost/engine/PackedFrame.h"
#include "refhost/engine/PackedValue.h"
#include "refhost/engine/TaskProblem.h"
#include "refhost/engine/VariableCheck.h"

#include "Operation.h"

#include <QDataStream>

#include <optional>

namespace {

using Reason = Problem::Reason;

Problem malformed(const QString &place, const QString &message)
{
    return {Reason::MalformedContent, {}, place, message};
}

/// What is wrong with a record of `size` bytes that a step of the type has read from the stream;
/// empty when nothing is.
QString recordTrouble(const QString &typeId, int size, const QDataStream &stream)
{
    const QString bytes = QString::number(size);
    if (stream.status() == QDataStream::ReadPastEnd) {
        return EngineText::tr("%1 cannot read its record of %2 bytes; it ends too early")
            .arg(typeId, bytes);
    }
    if (stream.status() != QDataStream::Ok) {
        return EngineText::tr("%1 cannot read its record of %2 bytes; it makes no sense")
            .arg(typeId, bytes);
    }
    const qint64 rest = stream.device()->bytesAvailable();
    if (rest == 0)
        return {};
    return EngineText::tr("%1 cannot read its record of %2 bytes; it has %3 bytes too many")
        .arg(typeId, bytes, QString::number(rest));
}

/// Reads the variables and the steps.
class ContentReader
{
public:
    ContentReader(const PackedContent &content, const OperationCatalog &catalog)
        : m_stream(content.bytes)
        , m_recordVersion(content.recordVersion)
        , m_catalog(catalog)
    {
        PackedForm::prepare(m_stream);
    }

    Result<Task> read()
    {
        Task task;
        if (const auto problem = readVariables(task))
            return *problem;
        if (const auto problem = readSteps(task))
            return *problem;
        if (const qint64 rest = bytesLeft()) {
            return malformed(QStringLiteral("steps"),
                             EngineText::tr("%1 bytes behind the last; expected none").arg(rest));
        }
        return task;
    }

private:
    std::optional<Problem> readVariables(Task &task);
    Result<TaskVariable> readVariable(const QString &place);
    std::optional<Problem> readSteps(Task &task);
    Result<std::unique_ptr<Operation>> readStep(const QString &place);
    Result<QByteArray> readRecord(const QString &place);
    std::optional<Problem> load(Operation &step, const QByteArray &record,
                                const QString &place) const;

    /// How many of what takes at least `smallest` bytes come next; they have to have the room.
    Result<quint32> readCount(const QString &place, int smallest);

    qint64 bytesLeft() const { return m_stream.device()->bytesAvailable(); }

    QDataStream m_stream;
    int m_recordVersion;
    const OperationCatalog &m_catalog;
};

Result<quint32> ContentReader::readCount(const QString &place, int smallest)
{
    quint32 count = 0;
    m_stream >> count;
    const qint64 room = bytesLeft() / smallest;
    if (m_stream.status() != QDataStream::Ok || count > room)
        return malformed(place, EngineText::tr("%1 of them; there is room for %2 at most")
                                    .arg(QString::number(count), QString::number(room)));
    return count;
}

std::optional<Problem> ContentReader::readVariables(Task &task)
{
    const QString place = QStringLiteral("variables");
    const Result<quint32> count = readCount(place, PackedForm::smallestVariable);
    if (!count)
        return count.problem();
    VariableCheck check;
    for (quint32 i = 0; i < count.value(); ++i) {
        const auto variable = readVariable(QStringLiteral("%1[%2]").arg(place).arg(i));
        if (!variable)
            return variable.problem();
        if (auto problem = check.check(variable.value()))
            return problem;
        task.variables.append(variable.value());
    }
    return std::nullopt;
}

Result<TaskVariable> ContentReader::readVariable(const QString &place)
{
    TaskVariable variable;
    quint8 type = 0;
    m_stream >> variable.name >> type;
    if (m_stream.status() != QDataStream::Ok)
        return malformed(place, EngineText::tr("a name beyond the end, or of half letters"));
    variable.type = static_cast<VarType>(type);
    const Result<QVariant> value = readPackedValue(m_stream);
    if (!value) {
        Problem problem = value.problem();
        problem.place = variablePlace(variable.name) + QStringLiteral(".value");
        return problem;
    }
    variable.value = value.value();
    return variable;
}

std::optional<Problem> ContentReader::readSteps(Task &task)
{
    const Result<quint32> count = readCount(QStringLiteral("steps"), PackedForm::smallestStep);
    if (!count)
        return count.problem();
    for (quint32 i = 0; i < count.value(); ++i) {
        auto step = readStep(stepPlace(static_cast<int>(i)));
        if (!step)
            return step.problem();
        task.steps.push_back(std::move(step.value()));
    }
    return std::nullopt;
}

Result<std::unique_ptr<Operation>> ContentReader::readStep(const QString &place)
{
    QString typeId;
    m_stream >> typeId;
    if (m_stream.status() != QDataStream::Ok)
        return malformed(place, EngineText::tr("a type beyond the end, or of half letters"));
    const CatalogEntry *const entry = m_catalog.find(typeId);
    if (!entry)
        return unknownType(place + QStringLiteral(".type"), typeId, m_catalog.typeIds());
    const Result<QByteArray> record = readRecord(place);
    if (!record)
        return record.problem();
    std::unique_ptr<Operation> step(entry->prototype->clone(nullptr));
    if (const auto problem = load(*step, record.value(), place))
        return *problem;
    return step;
}

Result<QByteArray> ContentReader::readRecord(const QString &place)
{
    quint32 length = 0;
    m_stream >> length;
    const qint64 room = bytesLeft();
    if (m_stream.status() != QDataStream::Ok || length > room) {
        return malformed(place, EngineText::tr("a record of %1 bytes; there is room for %2")
                                    .arg(QString::number(length), QString::number(room)));
    }
    return m_stream.device()->read(length);
}

std::optional<Problem> ContentReader::load(Operation &step, const QByteArray &record,
                                           const QString &place) const
{
    QDataStream stream(record);
    stream.setByteOrder(QDataStream::BigEndian);
    stream.setVersion(m_recordVersion);
    step.loadOperation(stream);
    const QString message = recordTrouble(step.typeId(), record.size(), stream);
    if (message.isEmpty())
        return std::nullopt;
    return Problem{Reason::UnfitRecord, {}, place, message};
}

} // namespace

Result<Task> unpackTask(const QByteArray &bytes, const OperationCatalog &catalog)
{
    const Result<PackedContent> content = openPackedFrame(bytes);
    return content ? ContentReader(content.value(), catalog).read() : content.problem();
}
