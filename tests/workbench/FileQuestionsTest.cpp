#include "refhost/workbench/files/DialogQuestions.h"

#include "tests/support/QuietTest.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>

namespace {

/// Does something to the dialog that is about to open.
void whenOpen(const std::function<void(QDialog &)> &act)
{
    auto *const timer = new QTimer;
    QObject::connect(timer, &QTimer::timeout, timer, [timer, act] {
        auto *const dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible())
            return;
        timer->deleteLater();
        act(*dialog);
    });
    timer->start(10);
}

void press(Qt::Key key)
{
    whenOpen([key](QDialog &dialog) { QTest::keyClick(&dialog, key); });
}

void click(const QString &text)
{
    whenOpen([text](QDialog &dialog) {
        for (QAbstractButton *const button : dialog.findChildren<QAbstractButton *>()) {
            if (button->text().remove('&').startsWith(text))
                return button->click();
        }
        dialog.reject();
    });
}

} // namespace

/// The dialogs: what Enter, Escape and each button answer.
class FileQuestionsTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void unsaved();
    void changed();
    void inexact();
    void reload();
    void lost();
    void tells();
    void choosesAFileToSave();

private:
    QWidget m_window;
    DialogQuestions m_questions{&m_window};
};

void FileQuestionsTest::unsaved()
{
    const auto ask = [this] { return m_questions.askUnsaved("<b>a.json"); };
    press(Qt::Key_Return);
    QCOMPARE(ask(), Questions::Unsaved::Save);
    press(Qt::Key_Escape);
    QCOMPARE(ask(), Questions::Unsaved::Cancel);
    click("不保存");
    QCOMPARE(ask(), Questions::Unsaved::Discard);
    whenOpen([](QDialog &dialog) {
        const auto &box = dynamic_cast<QMessageBox &>(dialog);
        QVERIFY(box.text().contains("<b>a.json"));
        QCOMPARE(box.textFormat(), Qt::PlainText);
        dialog.close();
    });
    QCOMPARE(ask(), Questions::Unsaved::Cancel);
}

void FileQuestionsTest::changed()
{
    const auto ask = [this] { return m_questions.askChanged("/x/a.json"); };
    press(Qt::Key_Return);
    QCOMPARE(ask(), Questions::Changed::SaveElsewhere);
    press(Qt::Key_Escape);
    QCOMPARE(ask(), Questions::Changed::Cancel);
    click("覆盖");
    QCOMPARE(ask(), Questions::Changed::Overwrite);
}

void FileQuestionsTest::inexact()
{
    const auto ask = [this] {
        return m_questions.askInexact({Problem::Reason::BeyondJson, {}, "place", "message"});
    };
    press(Qt::Key_Return);
    QCOMPARE(ask(), Questions::Inexact::SavePacked);
    press(Qt::Key_Escape);
    QCOMPARE(ask(), Questions::Inexact::Cancel);
    click("仍然保存为");
    QCOMPARE(ask(), Questions::Inexact::SaveJson);
}

void FileQuestionsTest::reload()
{
    press(Qt::Key_Return);
    QVERIFY(m_questions.askReload("/x/a.json"));
    press(Qt::Key_Escape);
    QVERIFY(!m_questions.askReload("/x/a.json"));
}

void FileQuestionsTest::lost()
{
    const auto ask = [this](const std::optional<Problem> &problem) {
        return m_questions.askLost({"/x/a.json", QDateTime::currentDateTime(), problem});
    };
    press(Qt::Key_Return);
    QCOMPARE(ask({}), Questions::Lost::Restore);
    press(Qt::Key_Escape);
    QCOMPARE(ask({}), Questions::Lost::Later);
    click("丢弃");
    QCOMPARE(ask({}), Questions::Lost::Discard);

    const Problem problem{Problem::Reason::UnknownType, "file", "place", "message"};
    press(Qt::Key_Return);
    QCOMPARE(ask(problem), Questions::Lost::Later);
    press(Qt::Key_Escape);
    QCOMPARE(ask(problem), Questions::Lost::Later);
    click("丢弃");
    QCOMPARE(ask(problem), Questions::Lost::Discard);
}

void FileQuestionsTest::tells()
{
    whenOpen([](QDialog &dialog) {
        QCOMPARE(dynamic_cast<QMessageBox &>(dialog).informativeText(), "file: place: message");
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    m_questions.tellUnreadable({Problem::Reason::UnreadableFile, "file", "place", "message"});
    press(Qt::Key_Return);
    m_questions.tellUnwritable({Problem::Reason::UnwritableFile, "file", "place", "message"});
}

void FileQuestionsTest::choosesAFileToSave()
{
    const QTemporaryDir folder;
    const auto ask = [&](const QString &name, int filter) {
        whenOpen([=](QDialog &dialog) {
            auto &files = dynamic_cast<QFileDialog &>(dialog);
            files.selectNameFilter(files.nameFilters().at(filter));
            Q_EMIT files.filterSelected(files.nameFilters().at(filter));
            files.findChild<QLineEdit *>("fileNameEdit")->setText(name);
            QMetaObject::invokeMethod(&files, "accept");
        });
        return m_questions.chooseSaveFile(folder.filePath("a.json"), TaskForm::Json);
    };
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    SaveChoice choice = ask("b", 0);
    QCOMPARE(choice.path, folder.filePath("b.json"));
    QCOMPARE(choice.form, TaskForm::Json);
    choice = ask("b", 1);
    QCOMPARE(choice.path, folder.filePath("b.task"));
    QCOMPARE(choice.form, TaskForm::Packed);
    choice = ask("b.json", 1);
    QCOMPARE(choice.form, TaskForm::Json);
    press(Qt::Key_Escape);
    QCOMPARE(m_questions.chooseSaveFile(folder.filePath("a.json"), TaskForm::Json).path, QString());
}

QTEST_MAIN(FileQuestionsTest)
#include "FileQuestionsTest.moc"
