#include "tests/support/QuietTest.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPluginLoader>
#include <QSvgRenderer>
#include <QXmlStreamReader>
#include <QtTest>

/// The icons as a host gets them from the loaded plug-in.
class IconsTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void frame_data() { eachIcon(); }
    void frame();
    void glyph_data();
    void glyph();
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
    QCOMPARE(xml.attributes().value("d"),
             QString("M296,256 L728,256 A40,40 0 0 1 768,296 L768,728 A40,40 0 0 1 728,768 "
                     "L296,768 A40,40 0 0 1 256,728 L256,296 A40,40 0 0 1 296,256 Z"));
    QCOMPARE(xml.attributes().value("fill"), QString("#E3F0FB"));
    QCOMPARE(xml.attributes().value("stroke"), QString("#196EBF"));
    QCOMPARE(xml.attributes().value("stroke-width"), QString("34"));
    QCOMPARE(xml.attributes().value("stroke-linejoin"), QString("round"));
    xml.skipCurrentElement();

    QVERIFY(xml.readNextStartElement());
    QCOMPARE(xml.attributes().value("d"),
             QString("M340,392 L684,392 M340,484 L684,484 M340,576 L620,576 M340,668 L684,668"));
    QCOMPARE(xml.attributes().value("stroke"), QString("#196EBF"));
    QCOMPARE(xml.attributes().value("stroke-width"), QString("22"));
    QCOMPARE(xml.attributes().value("stroke-linecap"), QString("round"));
    QCOMPARE(xml.attributes().value("fill"), QString("none"));
    xml.skipCurrentElement();

    // The glyph, then the end of the group and of the picture.
    QVERIFY(xml.readNextStartElement());
    while (!xml.atEnd())
        xml.readNext();
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QVERIFY(QSvgRenderer(iconPath(name)).isValid());
}

void IconsTest::glyph_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("shapes");

    // One element each: the start of its path or its place, and what it is drawn with.
    const auto stroke = [](const QString &path, int width) {
        return QString("<path d=\"%1\" fill=\"none\" stroke=\"#196EBF\" stroke-width=\"%2\" "
                       "stroke-linecap=\"round\" stroke-linejoin=\"round\"/>")
            .arg(path)
            .arg(width);
    };
    const auto box = [](int x, int y, int width, int height, int radius) {
        return QString("<rect x=\"%1\" y=\"%2\" width=\"%3\" height=\"%4\" rx=\"%5\" ry=\"%5\"")
            .arg(x)
            .arg(y)
            .arg(width)
            .arg(height)
            .arg(radius);
    };
    const QString solid = " fill=\"#196EBF\"/>";
    const QString card = " fill=\"#E3F0FB\" stroke=\"#196EBF\"";
    const auto text = [](const QString &letters, int y, int size) {
        return QString("<text x=\"512\" y=\"%1\" font-family=\"Arial, Helvetica, sans-serif\" "
                       "font-size=\"%2\" font-weight=\"700\" text-anchor=\"middle\" "
                       "fill=\"#196EBF\">%3</text>")
            .arg(y)
            .arg(size)
            .arg(letters);
    };
    const QString down = "M512,560 L512,640 M472,600 L512,640 L552,600";
    const auto row = [](const char *name, const QStringList &shapes) {
        QTest::newRow(name) << name << shapes;
    };
    row("append", {stroke("M512,372 L512,652 M392,512 L632,512", 48)});
    row("substring",
        {stroke("M380,380 L644,380 M380,664 L644,664", 30), box(412, 470, 200, 84, 14) + solid,
         stroke("M416,440 L392,440 L392,584 L416,584 "
                "M608,440 L632,440 L632,584 L608,584",
                28)});
    row("pad", {box(452, 452, 120, 120, 16) + card + " stroke-width=\"34\"",
                stroke("M412,512 L316,512 M356,468 L312,512 L356,556 "
                       "M612,512 L708,512 M668,468 L712,512 L668,556",
                       40)});
    row("between",
        {stroke("M380,372 L644,372 M380,652 L644,652", 30), box(436, 466, 152, 92, 12) + solid});
    row("trim",
        {stroke("M380,512 L644,512", 40), stroke("M340,512 L396,512 M352,452 L396,512 L352,572 "
                                                 "M684,512 L628,512 M672,452 L628,512 L672,572",
                                                 36)});
    row("reverse", {stroke("M644,452 L380,452 M436,396 L380,452 L436,508 "
                           "M380,592 L644,592 M588,536 L644,592 L588,648",
                           40)});
    row("case", {text("Aa", 668, 380)});
    row("tonumber", {stroke("M400,340 L624,340 M400,416 L624,416 M400,492 L560,492", 30),
                     stroke(down, 36), text("123", 786, 180)});
    row("fromnumber", {text("123", 500, 190), stroke(down, 36)});
    row("join", {stroke("M320,432 L472,432 M320,512 L472,512 M320,592 L472,592", 30),
                 stroke("M500,460 L552,512 L500,564", 34), stroke("M552,512 L704,512", 30)});
    row("split", {box(300, 412, 150, 200, 16) + card, box(574, 350, 130, 96, 12) + card,
                  box(574, 464, 130, 96, 12) + card, box(574, 578, 130, 96, 12) + card});
    row("find", {stroke("M602,470 A132,132 0 1 1 338,470 A132,132 0 1 1 602,470 Z "
                        "M566,566 L700,700",
                        44)});
    row("replace", {box(360, 320, 200, 120, 16) + card, box(464, 584, 200, 120, 16) + solid,
                    stroke("M600,456 L600,552 M564,516 L600,552 L636,516", 30)});
}

void IconsTest::glyph()
{
    QFETCH(QString, name);
    QFETCH(QStringList, shapes);
    const QString svg = QString::fromUtf8(content(name));
    for (const QString &shape : shapes)
        QVERIFY2(svg.contains(shape), qPrintable(shape));
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
