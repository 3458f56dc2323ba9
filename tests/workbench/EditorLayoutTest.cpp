#include "refhost/engine/OperationSchema.h"
#include "refhost/workbench/look/Language.h"
#include "tests/support/QuietTest.h"
#include "tests/workbench/support/EditorBench.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QScrollArea>

/// No field of any step is cut off, however little room the panel has.
class EditorLayoutTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void knowsTheHeightOfAFieldBeforeItIsShown_data();
    void knowsTheHeightOfAFieldBeforeItIsShown();
    void showsAllOfEachField_data();
    void showsAllOfEachField();

private:
    QFont m_font = QApplication::font();
};

namespace {

void addFontRows()
{
    QTest::addColumn<double>("points");
    for (const double points : {9.0, 10.5, 13.0, 22.0})
        QTest::newRow(qPrintable(QString::number(points) + " points")) << points;
}

void setFontSize(double points)
{
    QFont font = QApplication::font();
    font.setPointSizeF(points);
    QApplication::setFont(font);
}

int neededHeight(const QWidget &widget)
{
    const int least = widget.hasHeightForWidth() ? widget.heightForWidth(widget.width())
                                                 : widget.minimumSizeHint().height();
    return qMax(least, widget.minimumHeight());
}

/// Of what a field is made inside is its own matter.
bool isPartOfField(const QWidget &widget)
{
    const QWidget *const parent = widget.parentWidget();
    return qobject_cast<const QAbstractScrollArea *>(parent) ||
           qobject_cast<const QComboBox *>(parent) ||
           qobject_cast<const QAbstractScrollArea *>(parent->parentWidget());
}

/// The widgets of the form that are lower than they need to be, or reach out of what holds them.
QStringList cutOff(const EditorBench &bench)
{
    QStringList names;
    const QWidget *const page = bench.part<QScrollArea>("scroll")->widget();
    for (const QWidget *const widget : page->findChildren<QWidget *>()) {
        if (!widget->isVisible() || (widget->parentWidget() != page && isPartOfField(*widget)))
            continue;
        const int bottom = widget->y() + widget->height();
        if (widget->height() < neededHeight(*widget) || bottom > widget->parentWidget()->height())
            names.append(QString("%1 %2: %3 high of %4, down to %5 of %6")
                             .arg(widget->metaObject()->className(), widget->objectName())
                             .arg(widget->height())
                             .arg(neededHeight(*widget))
                             .arg(bottom)
                             .arg(widget->parentWidget()->height()));
    }
    return names;
}

/// Fills in what gives each field something to say about it.
void fillIn(EditorBench &bench, const QString &typeId, const QString &text)
{
    bench.open(typeId);
    const auto step = bench.bench.document.state().steps.first().operation;
    const QList<PropertySchema> properties = OperationSchema(*step).properties();
    for (const PropertySchema &schema : properties) {
        const QByteArray name = schema.name.toUtf8();
        if (bench.get(name.constData()).type() == QVariant::String)
            bench.set(name.constData(), text);
    }
    bench.bench.check.update();
}

} // namespace

void EditorLayoutTest::cleanup()
{
    QApplication::setFont(m_font);
    installLanguage("zh");
    QuietTest::cleanup();
}

void EditorLayoutTest::knowsTheHeightOfAFieldBeforeItIsShown_data()
{
    addFontRows();
}

void EditorLayoutTest::knowsTheHeightOfAFieldBeforeItIsShown()
{
    QFETCH(double, points);
    setFontSize(points);
    EditorBench bench;
    bench.panel.hide();
    bench.open("text.pad");
    bench.set("sourceText", "007");
    const int field = bench.text("sourceText")->height();
    const int button = bench.part<QAbstractButton>("sourceText.insert")->height();
    bench.panel.show();
    QTRY_COMPARE(cutOff(bench).join("; "), QString());
    QCOMPARE(bench.text("sourceText")->height(), field);
    QCOMPARE(bench.text("padText")->height(), field);
    QCOMPARE(button, field);
}

void EditorLayoutTest::showsAllOfEachField_data()
{
    QTest::addColumn<double>("points");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("language");
    QTest::newRow("zh, narrow") << 9.0 << 180 << "zh";
    QTest::newRow("zh, wide and large") << 13.0 << 480 << "zh";
    QTest::newRow("en, narrow and large") << 13.0 << 180 << "en";
    QTest::newRow("en, wide") << 9.0 << 480 << "en";
}

void EditorLayoutTest::showsAllOfEachField()
{
    QFETCH(double, points);
    QFETCH(int, width);
    QFETCH(QString, language);
    setFontSize(points);
    QVERIFY(installLanguage(language));
    EditorBench bench;
    bench.panel.resize(width, 150);
    const QStringList types = bench.bench.library.catalog().typeIds();
    for (const QString &type : types) {
        for (const char *const text : {"$lost", "\\n 1.50\nsecond line"}) {
            fillIn(bench, type, text);
            QTRY_COMPARE(cutOff(bench).join("; "), QString());
        }
    }
    bench.panel.resize(width * 3 / 2, 400);
    QTRY_COMPARE(cutOff(bench).join("; "), QString());
}

QTEST_MAIN(EditorLayoutTest)
#include "EditorLayoutTest.moc"
