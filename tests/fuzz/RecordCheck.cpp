#include "tests/fuzz/RecordCheck.h"

#include "tests/support/Records.h"
#include "tests/support/Steps.h"

#include <QMetaProperty>

#include <algorithm>
#include <memory>

namespace {

RecordForm takeForm(ByteSource &source)
{
    constexpr int versions = QDataStream::Qt_5_15 - QDataStream::Qt_4_6 + 1;
    RecordForm form;
    form.byteOrder = source.takeBool() ? QDataStream::LittleEndian : QDataStream::BigEndian;
    form.version =
        static_cast<QDataStream::Version>(QDataStream::Qt_4_6 + source.takeBelow(versions));
    return form;
}

QByteArray takeRest(ByteSource &source)
{
    QByteArray bytes;
    while (!source.isEmpty())
        bytes.append(static_cast<char>(source.takeByte()));
    return bytes;
}

/// Whether `saved` is how `loaded` began. A flag may be any byte but 0 there.
bool isBeginning(const QByteArray &saved, const QByteArray &loaded)
{
    const auto isSame = [](char written, char read) {
        return written == read || (written == 1 && read != 0);
    };
    return saved.size() <= loaded.size() &&
           std::equal(saved.cbegin(), saved.cend(), loaded.cbegin(), isSame);
}

bool haveEqualSettings(const Operation &left, const Operation &right)
{
    const QMetaObject &type = *left.metaObject();
    for (int i = type.propertyOffset(); i < type.propertyCount(); ++i) {
        if (type.property(i).read(&left) != type.property(i).read(&right))
            return false;
    }
    return true;
}

} // namespace

QString checkRecord(ByteSource source)
{
    static const auto prototypes = makeAllSteps();
    const std::size_t index = static_cast<std::size_t>(source.takeByte()) % prototypes.size();
    const RecordForm form = takeForm(source);
    const QByteArray bytes = takeRest(source);

    const std::unique_ptr<Operation> loaded(prototypes[index]->clone(nullptr));
    const bool isComplete = loadRecord(*loaded, bytes, form) == QDataStream::Ok;
    const QByteArray saved = saveRecord(*loaded, form);
    const std::unique_ptr<Operation> again(prototypes[index]->clone(nullptr));
    if (loadRecord(*again, saved, form) != QDataStream::Ok)
        return "the saved record cannot be loaded";
    if (!haveEqualSettings(*loaded, *again))
        return "what was saved is not what is loaded";
    if (isComplete && !isBeginning(saved, bytes))
        return "the saved record is not the loaded one";
    if (!loaded->toString().startsWith(loaded->typeName() + ": "))
        return "the summary does not begin with the type's name";
    loaded->description();
    return {};
}
