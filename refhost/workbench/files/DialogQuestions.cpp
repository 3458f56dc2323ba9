#include "refhost/workbench/files/DialogQuestions.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLocale>
#include <QPushButton>

namespace {

QString nameOf(const QString &path)
{
    return QFileInfo(path).fileName();
}

/// Keeps paths and reasons from being broken into many short lines.
void widen(QMessageBox &box)
{
    constexpr int letters = 55;
    auto *const grid = qobject_cast<QGridLayout *>(box.layout());
    if (grid) {
        const int width = letters * box.fontMetrics().averageCharWidth();
        grid->addItem(new QSpacerItem(width, 0, QSizePolicy::Minimum, QSizePolicy::Fixed),
                      grid->rowCount(), 0, 1, grid->columnCount());
    }
}

} // namespace

DialogQuestions::DialogQuestions(QWidget *window)
    : m_window(window)
{
}

int DialogQuestions::ask(QMessageBox::Icon icon, const QString &text, const QString &more,
                         const QList<Button> &buttons)
{
    QMessageBox box(icon, tr("操作工作台"), text, QMessageBox::NoButton, m_window);
    box.setObjectName(QStringLiteral("files.question"));
    // Names of files are texts, whatever stands in them.
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(more);
    widen(box);
    QList<QAbstractButton *> added;
    for (const Button &button : buttons)
        added.append(box.addButton(button.text, button.role));
    const int first = buttons.constFirst().role == QMessageBox::DestructiveRole ? 1 : 0;
    box.setDefaultButton(qobject_cast<QPushButton *>(added.at(first)));
    box.setEscapeButton(added.constLast());
    box.exec();
    return added.indexOf(box.clickedButton());
}

Questions::Unsaved DialogQuestions::askUnsaved(const QString &name)
{
    const int answer = ask(QMessageBox::Question, tr("任务“%1”已修改。").arg(name),
                           tr("要保存修改吗？不保存的话，修改将会丢失。"),
                           {{tr("保存(&S)"), QMessageBox::AcceptRole},
                            {tr("不保存(&D)"), QMessageBox::DestructiveRole},
                            {tr("取消"), QMessageBox::RejectRole}});
    return answer == 0 ? Unsaved::Save : answer == 1 ? Unsaved::Discard : Unsaved::Cancel;
}

QString DialogQuestions::chooseOpenFile(const QString &folder)
{
    return QFileDialog::getOpenFileName(m_window, tr("打开任务"), folder,
                                        tr("任务 (*.json *.task);;所有文件 (*)"));
}

SaveChoice DialogQuestions::chooseSaveFile(const QString &suggested, TaskForm form)
{
    const QString json = tr("JSON 任务 (*.json)");
    const QString packed = tr("打包任务 (*.task)");
    const auto formOf = [&packed](const QString &filter) {
        return filter == packed ? TaskForm::Packed : TaskForm::Json;
    };
    QFileDialog dialog(m_window, tr("任务另存为"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilters({json, packed});
    dialog.selectNameFilter(form == TaskForm::Packed ? packed : json);
    dialog.setDefaultSuffix(suffixOf(form));
    dialog.setDirectory(QFileInfo(suggested).absolutePath());
    dialog.selectFile(nameOf(suggested));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString &filter) {
        dialog.setDefaultSuffix(suffixOf(formOf(filter)));
    });
    if (dialog.exec() != QDialog::Accepted)
        return {};
    const QString path = dialog.selectedFiles().value(0);
    return {path, formOfName(path, formOf(dialog.selectedNameFilter()))};
}

Questions::Changed DialogQuestions::askChanged(const QString &path)
{
    const int answer = ask(QMessageBox::Warning, tr("文件“%1”已被其他程序修改。").arg(nameOf(path)),
                           tr("覆盖它会丢失那些修改。"),
                           {{tr("另存为(&A)…"), QMessageBox::AcceptRole},
                            {tr("覆盖(&O)"), QMessageBox::DestructiveRole},
                            {tr("取消"), QMessageBox::RejectRole}});
    return answer == 0   ? Changed::SaveElsewhere
           : answer == 1 ? Changed::Overwrite
                         : Changed::Cancel;
}

Questions::Inexact DialogQuestions::askInexact(const Problem &problem)
{
    const int answer = ask(QMessageBox::Warning, tr("JSON 无法准确保存这个任务。"),
                           tr("%1\n\n打包格式可以准确保存。").arg(problem.toString()),
                           {{tr("保存为打包格式(&P)…"), QMessageBox::AcceptRole},
                            {tr("仍然保存为 JSON(&J)"), QMessageBox::DestructiveRole},
                            {tr("取消"), QMessageBox::RejectRole}});
    return answer == 0 ? Inexact::SavePacked : answer == 1 ? Inexact::SaveJson : Inexact::Cancel;
}

bool DialogQuestions::askReload(const QString &path)
{
    return ask(QMessageBox::Question, tr("文件“%1”已被其他程序修改。").arg(nameOf(path)),
               tr("要重新载入吗？"),
               {{tr("重新载入(&R)"), QMessageBox::AcceptRole},
                {tr("保持现状(&K)"), QMessageBox::RejectRole}}) == 0;
}

Questions::Lost DialogQuestions::askLost(const RecoveryOffer &offer)
{
    const QString time = QLocale().toString(offer.time, QLocale::ShortFormat);
    const QString text = offer.original.isEmpty()
                             ? tr("有一个没有保存过的任务可以恢复。")
                             : tr("任务“%1”有未保存的修改可以恢复。").arg(nameOf(offer.original));
    const Button discard{tr("丢弃(&D)"), QMessageBox::DestructiveRole};
    const Button later{tr("以后再说(&L)"), QMessageBox::RejectRole};
    if (offer.problem) {
        const int answer = ask(QMessageBox::Warning, text,
                               tr("最后修改于 %1。现在无法恢复，会一直保留：\n\n%2")
                                   .arg(time, offer.problem->toString()),
                               {discard, later});
        return answer == 0 ? Lost::Discard : Lost::Later;
    }
    const int answer = ask(QMessageBox::Question, text, tr("最后修改于 %1。").arg(time),
                           {{tr("恢复(&R)"), QMessageBox::AcceptRole}, discard, later});
    return answer == 0 ? Lost::Restore : answer == 1 ? Lost::Discard : Lost::Later;
}

void DialogQuestions::tellUnreadable(const Problem &problem)
{
    ask(QMessageBox::Critical, tr("无法打开任务。"), problem.toString(),
        {{tr("确定"), QMessageBox::AcceptRole}});
}

void DialogQuestions::tellUnwritable(const Problem &problem)
{
    ask(QMessageBox::Critical, tr("无法保存任务。"), problem.toString(),
        {{tr("确定"), QMessageBox::AcceptRole}});
}
