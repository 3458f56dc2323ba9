#include "tests/hostile/FailingAllocation.h"
#include "tests/support/Records.h"
#include "tests/support/Steps.h"

#include <QMetaProperty>
#include <QtTest>

Q_DECLARE_METATYPE(RecordForm)

/// A record whose texts claim to be longer than it is: what is asked of memory stays with what is
/// there, but for the block of at most 4 MiB in which Qt reads.
class RecordAllocationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void claimsOfLength_data();
    void claimsOfLength();
};

void RecordAllocationTest::claimsOfLength_data()
{
    QTest::addColumn<quint32>("length");
    QTest::addColumn<RecordForm>("form");
    for (const quint32 length : {0xFFFFFFFEU, 0xFFFFFFFDU, 0x80000000U, 0x7FFFFFFEU, 0x00400000U}) {
        for (int version = QDataStream::Qt_4_6; version <= QDataStream::Qt_5_15; ++version) {
            for (const auto order : {QDataStream::BigEndian, QDataStream::LittleEndian}) {
                QTest::addRow("%x, version %d, order %d", length, version, order)
                    << length << RecordForm{order, static_cast<QDataStream::Version>(version)};
            }
        }
    }
}

void RecordAllocationTest::claimsOfLength()
{
    QFETCH(quint32, length);
    QFETCH(RecordForm, form);
    constexpr std::size_t blockOfQt = 4 << 20;
    for (const auto &operation : makeAllSteps()) {
        QByteArray record(4, '\0');
        QDataStream stream(&record, QIODevice::Append);
        stream.setByteOrder(form.byteOrder);
        stream << length << quint32(0x00410042);
        FailingAllocation::watch();
        const QDataStream::Status status = loadRecord(*operation, record, form);
        QVERIFY(FailingAllocation::largest() <= blockOfQt);
        QVERIFY(status != QDataStream::Ok);
        const QMetaObject &type = *operation->metaObject();
        QCOMPARE(type.property(type.propertyOffset()).read(operation.get()), QVariant(QString()));
    }
}

QTEST_GUILESS_MAIN(RecordAllocationTest)

#include "RecordAllocationTest.moc"
