#include "tests/golden/GoldenCases.h"

#include "tests/support/Records.h"

#include "refhost/engine/OperationSchema.h"

#include "Operation.h"

#include <QCryptographicHash>

#include <limits>
#include <memory>
#include <utility>

namespace {

constexpr int smallest = std::numeric_limits<int>::min();
constexpr int largest = std::numeric_limits<int>::max();

/// What the properties of a case are set to. No two properties of one type get the same, so that a
/// change of their order shows.
struct Filling
{
    QString name;
    QString text;
    bool isNumbered = true; ///< the text ends with the number of the property
    int number = 0;         ///< that of the first property
    int step = 1;           ///< from one property to the next
    bool flag = false;
};

QList<Filling> fillings()
{
    const QChar loneSurrogate(0xD83D);
    return {
        {"changed", "文本 $x ", true, 1000, 1, true},
        {"empty", "", false, 0, 0, false},
        {"null", QString(), false, -1, -1, true},
        {"emoji", "😀\n\te\u0301 ", true, largest, -1, false},
        {"units", QString("a") + QChar::Null + loneSurrogate, true, smallest, 1, true},
        {"long", QString("长😀x").repeated(17500), false, 70000, 1, false},
    };
}

void fill(Operation &step, const Filling &filling)
{
    const QStringList names = OperationSchema(step).propertyNames();
    for (int i = 0; i < names.size(); ++i) {
        const QByteArray name = names.at(i).toUtf8();
        const QString text = filling.isNumbered ? filling.text + QString::number(i) : filling.text;
        switch (step.property(name).userType()) {
        case QMetaType::Int:
            step.setProperty(name, filling.number + i * filling.step);
            break;
        case QMetaType::Bool:
            step.setProperty(name, filling.flag);
            break;
        default:
            step.setProperty(name, text);
        }
    }
}

GoldenRecord recordOf(const Operation &step, const QString &name)
{
    GoldenRecord record;
    record.typeId = step.typeId();
    record.name = name;
    record.bytes = saveRecord(step);
    record.hostState = record.bytes.left(4).toHex().toUInt(nullptr, 16);
    for (const QString &property : OperationSchema(step).propertyNames())
        record.properties.insert(property, step.property(property.toUtf8()));
    return record;
}

} // namespace

QList<GoldenRecord> goldenCases(const Operation &prototype)
{
    QList<GoldenRecord> records = {recordOf(prototype, "defaults")};
    const QList<Filling> all = fillings();
    for (const Filling &filling : all) {
        const std::unique_ptr<Operation> step(prototype.clone(nullptr));
        if (filling.name == "changed")
            loadRecord(*step, QByteArray::fromHex("01020304"));
        fill(*step, filling);
        records.append(recordOf(*step, filling.name));
        if (filling.name == "long") {
            const QByteArray bytes = std::exchange(records.last().bytes, {});
            records.last().checksum =
                QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
        }
    }
    return records;
}
