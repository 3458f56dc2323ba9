#include "refhost/workbench/look/SymbolIcon.h"

#include "tests/support/QuietTest.h"

#include <QDir>
#include <QDirIterator>
#include <QGuiApplication>
#include <QIcon>
#include <QImage>
#include <QPalette>
#include <QPixmap>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

namespace {

QString workbenchFolder()
{
    return QStringLiteral(PROJECT_FOLDER) + "/refhost/workbench";
}

QStringList symbolNames()
{
    QStringList names;
    const QFileInfoList files = QDir(workbenchFolder() + "/symbols").entryInfoList({"*.svg"});
    for (const QFileInfo &file : files)
        names.append(file.completeBaseName());
    return names;
}

/// The colours of the pixels that are drawn with full strength.
QSet<QRgb> colorsOf(const QIcon &icon, QIcon::Mode mode = QIcon::Normal)
{
    const QImage image = icon.pixmap(48, mode).toImage().convertToFormat(QImage::Format_ARGB32);
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) == 255)
                colors.insert(image.pixel(x, y));
        }
    }
    return colors;
}

} // namespace

/// Every symbol is in the program and is drawn in the colours of the palette.
class SymbolIconTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void isDrawn_data();
    void isDrawn();
    void sourcesNameOnlyWhatThereIs();
};

void SymbolIconTest::isDrawn_data()
{
    QTest::addColumn<QString>("name");

    const QStringList names = symbolNames();
    QVERIFY(!names.isEmpty());
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << name;
}

void SymbolIconTest::isDrawn()
{
    QFETCH(QString, name);
    const QIcon icon = symbolIcon(name);
    const QPalette palette = QGuiApplication::palette();
    QVERIFY(colorsOf(icon).contains(palette.color(QPalette::ButtonText).rgb()));
    QVERIFY(colorsOf(icon, QIcon::Disabled)
                .contains(palette.color(QPalette::Disabled, QPalette::ButtonText).rgb()));
    QVERIFY(QFile::exists(":/symbols/" + name + ".svg"));
}

void SymbolIconTest::sourcesNameOnlyWhatThereIs()
{
    const QRegularExpression use(R"re(symbolIcon\(QStringLiteral\("([^"]*)"\)\))re");
    const QStringList names = symbolNames();
    QDirIterator sources(workbenchFolder(), {"*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        QFile file(sources.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        auto match = use.globalMatch(QString::fromUtf8(file.readAll()));
        while (match.hasNext()) {
            const QString name = match.next().captured(1);
            QVERIFY2(names.contains(name), qPrintable(file.fileName() + ": " + name));
        }
    }
}

QTEST_MAIN(SymbolIconTest)
#include "SymbolIconTest.moc"
