#pragma once

#include "refhost/workbench/editor/EditorPanel.h"
#include "refhost/workbench/editor/ExactTextEdit.h"
#include "refhost/workbench/editor/PropertyEditor.h"
#include "refhost/workbench/editor/RemarkLine.h"
#include "refhost/workbench/window/Workbench.h"
#include "tests/workbench/support/NewStep.h"

#include "Operation.h"

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QPushButton>
#include <QTest>

Q_DECLARE_METATYPE(Remark::Kind)

/// A workbench with the test plug-ins, and its editor in a window of its own.
class EditorBench
{
public:
    EditorBench()
        : bench({QStringLiteral(PLUGIN_FILE), QStringLiteral(EDITORS_PLUGIN),
                 QStringLiteral(ODD_PLUGIN)})
        , panel(bench)
    {
        panel.resize(360, 700);
        panel.show();
        QApplication::setActiveWindow(&panel);
    }

    /// Opens a task with these variables and one step of that type, which becomes the current one.
    void open(const QString &typeId, const QList<TaskVariable> &variables = {})
    {
        TaskState state;
        for (const TaskVariable &variable : variables)
            state = state.withVariable(state.variables.size(), {newStateId(), variable});
        bench.document.replace(state.withSteps(0, {newStep(typeId)}));
        bench.place.setStep(bench.document.state().steps.first().id);
    }

    StepState newStep(const QString &typeId) const
    {
        return newStepOf(bench.library.catalog(), typeId);
    }

    /// Sets a property, as another panel would.
    void set(const char *property, const QVariant &value)
    {
        const int step = bench.place.step();
        bench.document.change("elsewhere",
                              bench.document.state().withProperty(step, property, value),
                              {step, property, 0});
    }

    /// A property of the current step as the document has it.
    QVariant get(const char *property) const
    {
        return bench.document.state().step(bench.place.step())->operation->property(property);
    }

    /// The part of the panel called "editor.<name>".
    template <typename Part>
    Part *part(const QString &name) const
    {
        return panel.findChild<Part *>("editor." + name);
    }

    ExactTextEdit *text(const QString &property) const { return part<ExactTextEdit>(property); }
    PropertyEditor *row(const QString &property) const
    {
        return part<PropertyEditor>(property + ".row");
    }
    bool isShown(const QString &property) const { return row(property)->isVisible(); }

    QString remark(const QString &property) const
    {
        return part<RemarkLine>(property + ".remark")->text();
    }
    Remark::Kind remarkKind(const QString &property) const
    {
        return part<RemarkLine>(property + ".remark")->remark().kind;
    }
    QStringList findings(const QString &property) const
    {
        QStringList texts;
        for (const auto *line : panel.findChildren<RemarkLine *>("editor." + property + ".finding"))
            texts.append(line->text());
        return texts;
    }

    /// Clicks the button of a remark.
    void fix(const QString &property) const
    {
        auto *const line = part<RemarkLine>(property + ".remark");
        QTest::mouseClick(line->findChild<QPushButton *>("fix"), Qt::LeftButton);
    }

    /// The menu of a field, filled as if it were open.
    QMenu *menu(const QString &property) const
    {
        auto *const menu = part<QMenu>(property + ".menu");
        Q_EMIT menu->aboutToShow();
        return menu;
    }

    Workbench bench;
    EditorPanel panel;
};
