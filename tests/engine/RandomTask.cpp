#include "tests/engine/RandomTask.h"

#include "refhost/engine/OperationCatalog.h"

#include "Operation.h"

#include <QMetaProperty>

#include <cmath>
#include <cstring>
#include <iterator>
#include <limits>

namespace {

// Letters of one to four bytes, halves of pairs, what JSON escapes, and what begins a file.
constexpr char16_t units[] = {u'a',   u'$',   u'.',   u'"',   u'\\',  u'\n',  0x0000, 0x007F,
                              0x00E9, 0x2028, 0x6587, 0xD83D, 0xDE00, 0xD800, 0xFEFF, 0xFFFF};

constexpr double oddNumbers[] = {-0.0,
                                 0.5,
                                 2.0,
                                 1e300,
                                 9007199254740993.0,
                                 std::numeric_limits<double>::denorm_min(),
                                 std::numeric_limits<double>::infinity(),
                                 -std::numeric_limits<double>::infinity(),
                                 std::numeric_limits<double>::quiet_NaN(),
                                 std::numeric_limits<double>::max()};

} // namespace

RandomTask::RandomTask(const OperationCatalog &catalog, quint32 seed, Values values)
    : m_catalog(catalog)
    , m_random(seed)
    , m_values(values)
{
}

Task RandomTask::take()
{
    Task task;
    for (int i = below(6); i > 0; --i) {
        const auto type = static_cast<VarType>(1 + below(6));
        const QString name = text() + QString::number(i);
        const bool starts = below(4) != 0;
        task.variables.append({name, type, starts ? value(type) : QVariant()});
    }
    for (int i = below(6); i > 0; --i)
        task.steps.push_back(step());
    return task;
}

QString RandomTask::text()
{
    QString text("");
    for (int i = below(8); i > 0; --i)
        text += QChar(static_cast<ushort>(units[below(std::size(units))]));
    return text;
}

QVariant RandomTask::textValue()
{
    return m_values == Values::Any && below(4) == 0 ? QString() : text();
}

double RandomTask::number()
{
    if (below(2) == 0)
        return oddNumbers[below(std::size(oddNumbers))];
    const quint64 bits = m_random.generate64();
    double number = 0;
    std::memcpy(&number, &bits, sizeof number);
    return number;
}

QVariant RandomTask::wholeNumber()
{
    const auto wide = static_cast<qlonglong>(m_random.generate64());
    const auto narrow = static_cast<int>(m_random.generate());
    if (m_values == Values::Any)
        return below(2) == 0 ? QVariant(wide >> below(64)) : QVariant(narrow);
    // 64 bits wide only where 32 do not do.
    return below(2) == 0 && wide != static_cast<int>(wide) ? QVariant(wide) : QVariant(narrow);
}

QVariant RandomTask::element(int depth)
{
    switch (below(m_values == Values::Any ? 7 : 6)) {
    case 0:
        return below(2) == 0;
    case 1:
        return wholeNumber();
    case 2: {
        const double any = number();
        return m_values == Values::Any || std::isfinite(any) ? any : 0.1;
    }
    case 3:
    case 4:
        return textValue();
    case 5:
        return list(depth + 1);
    default:
        return {};
    }
}

QVariantList RandomTask::list(int depth)
{
    QVariantList list;
    for (int i = below(depth > 3 ? 1 : 5); i > 0; --i)
        list.append(element(depth));
    return list;
}

QVariantList RandomTask::table()
{
    QVariantList rows;
    for (int i = below(4); i > 0; --i)
        rows.append(QVariant(list(1)));
    return rows;
}

QVariant RandomTask::value(VarType type)
{
    switch (type) {
    case VarType::Int:
        return static_cast<int>(m_random.generate());
    case VarType::Double: {
        const double any = number();
        return m_values == Values::Any || !std::isnan(any)
                   ? any
                   : std::numeric_limits<double>::quiet_NaN();
    }
    case VarType::String:
        return textValue();
    case VarType::Bool:
        return below(2) == 0;
    case VarType::List:
        return list(0);
    default:
        return table();
    }
}

std::unique_ptr<Operation> RandomTask::step()
{
    const QList<CatalogEntry> &entries = m_catalog.entries();
    std::unique_ptr<Operation> step(entries.at(below(entries.size())).prototype->clone(nullptr));
    const QMetaObject &meta = *step->metaObject();
    for (int i = Operation::staticMetaObject.propertyCount(); i < meta.propertyCount(); ++i) {
        if (below(3) == 0)
            continue;
        const QMetaProperty property = meta.property(i);
        if (property.userType() == QMetaType::QString)
            property.write(step.get(), textValue());
        else if (property.userType() == QMetaType::Bool)
            property.write(step.get(), below(2) == 0);
        else if (property.userType() == QMetaType::Int)
            property.write(step.get(),
                           below(2) == 0 ? below(5) : static_cast<int>(m_random.generate()));
    }
    return step;
}
