#include "tests/support/QuietTest.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPluginLoader>
#include <QSvgRenderer>
#include <QXmlStreamReader>
#include <QtTest>

/// The thirteen icons as a host gets them from the loaded plug-in.
class IconsTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void frame_data() { eachIcon(); }
    void frame();
    void colours_data() { eachIcon(); }
    void colours();
    void reads_data();
    void reads();
    void allDiffer();

private:
    void eachIcon();
};

namespace {

const QStringList names{"append",   "substring",  "pad",  "between", "trim", "reverse", "case",
                        "tonumber", "fromnumber", "join", "split",   "find", "replace"};

QString iconPath(const QString &name)
{
    return ":/images/text_" + name + ".svg";
}

QByteArray content(const QString &name)
{
    QFile file(iconPath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QImage render(const QString &name, int size)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    QSvgRenderer(iconPath(name)).render(&painter);
    return image;
}

/// The share of pixels that differ clearly between two pictures of one size.
double difference(const QImage &left, const QImage &right)
{
    int differing = 0;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x) {
            if (qAbs(qGray(left.pixel(x, y)) - qGray(right.pixel(x, y))) > 40)
                ++differing;
        }
    }
    return double(differing) / (left.width() * left.height());
}

} // namespace

void IconsTest::initTestCase()
{
    QPluginLoader loader(PLUGIN_FILE);
    QVERIFY2(loader.load(), qPrintable(loader.errorString()));
}

void IconsTest::eachIcon()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << name;
}

void IconsTest::frame()
{
    QFETCH(QString, name);
    QXmlStreamReader xml(content(name));
    QVERIFY(xml.readNextStartElement());
    QCOMPARE(xml.name(), QString("svg"));
    QCOMPARE(xml.namespaceUri(), QString("http://www.w3.org/2000/svg"));
    QCOMPARE(xml.attributes().value("viewBox"), QString("0 0 1024 1024"));
    QCOMPARE(xml.attributes().value("width"), QString("200"));
    QCOMPARE(xml.attributes().value("height"), QString("200"));

    QVERIFY(xml.readNextStartElement());
    QCOMPARE(xml.name(), QString("g"));
    const bool lower = name == "tonumber";
    QCOMPARE(xml.attributes().value("transform"),
             QString(lower ? "translate(512,521) scale(1.7228) translate(-512,-521)"
                           : "translate(512,512) scale(1.8116) translate(-512,-512)"));

    QVERIFY(xml.readNextStartElement());
    QCOMPARE(xml.attributes().value("fill"), QString("#E3F0FB"));
    QCOMPARE(xml.attributes().value("stroke"), QString("#196EBF"));
    QCOMPARE(xml.attributes().value("stroke-width"), QString("34"));
    QCOMPARE(xml.attributes().value("stroke-linejoin"), QString("round"));
    xml.skipCurrentElement();

    QVERIFY(xml.readNextStartElement());
    QCOMPARE(xml.attributes().value("d"),
             QString("M340,392 L684,392 M340,484 L684,484 M340,576 L620,576 M340,668 L684,668"));
    QCOMPARE(xml.attributes().value("stroke-width"), QString("22"));
    xml.skipCurrentElement();

    // The glyph, then the end of the group and of the picture.
    QVERIFY(xml.readNextStartElement());
    while (!xml.atEnd())
        xml.readNext();
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QVERIFY(QSvgRenderer(iconPath(name)).isValid());
}

void IconsTest::colours()
{
    QFETCH(QString, name);
    const QString svg = QString::fromUtf8(content(name));
    QRegularExpressionMatchIterator colours = QRegularExpression("#[0-9A-Za-z]+").globalMatch(svg);
    QVERIFY(colours.hasNext());
    while (colours.hasNext()) {
        const QString colour = colours.next().captured();
        QVERIFY2(colour == "#196EBF" || colour == "#E3F0FB", qPrintable(colour));
    }
}

void IconsTest::reads_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("size");
    for (const QString &name : names) {
        for (const int size : {200, 48, 24})
            QTest::addRow("%s at %d", qPrintable(name), size) << name << size;
    }
}

void IconsTest::reads()
{
    QFETCH(QString, name);
    QFETCH(int, size);
    const QImage image = render(name, size);
    // The card fills most of the square, its corners stay free, the glyph is on it.
    QCOMPARE(image.pixel(0, 0), QColor(Qt::white).rgb());
    int dark = 0;
    for (int y = size / 6; y < size - size / 6; ++y) {
        for (int x = size / 6; x < size - size / 6; ++x)
            dark += qGray(image.pixel(x, y)) < 150 ? 1 : 0;
    }
    QVERIFY2(dark > size * size / 50, qPrintable(QString::number(dark)));
}

void IconsTest::allDiffer()
{
    for (const QString &name : names) {
        for (const QString &other : names) {
            if (name < other)
                QVERIFY2(difference(render(name, 24), render(other, 24)) > 0.04,
                         qPrintable(name + " and " + other));
        }
    }
}

QTEST_MAIN(IconsTest)

#include "IconsTest.moc"
