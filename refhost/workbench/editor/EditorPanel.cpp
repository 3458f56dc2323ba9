#include "refhost/workbench/editor/EditorPanel.h"

#include "refhost/workbench/editor/PropertyEditor.h"
#include "refhost/workbench/editor/StepForm.h"
#include "refhost/workbench/editor/StepHeader.h"
#include "refhost/workbench/window/Workbench.h"

#include "Operation.h"

#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

EditorPanel::EditorPanel(Workbench &bench, QWidget *parent)
    : QWidget(parent)
    , m_bench(bench)
    , m_empty(new QLabel(tr("选择一个步骤来编辑，或从操作列表添加一个。"), this))
    , m_scroll(new QScrollArea(this))
    , m_page(new QWidget(m_scroll))
    , m_column(new QVBoxLayout(m_page))
    , m_header(new StepHeader(m_page))
{
    createWidgets();
    connectBench();
    showCurrent();
}

void EditorPanel::createWidgets()
{
    m_empty->setObjectName(QStringLiteral("editor.empty"));
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setWordWrap(true);
    m_empty->setMargin(fontMetrics().height());
    m_empty->setForegroundRole(QPalette::PlaceholderText);
    m_column->setSpacing(fontMetrics().height());
    m_column->addWidget(m_header);
    m_column->addStretch(1);
    m_scroll->setObjectName(QStringLiteral("editor.scroll"));
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setWidgetResizable(true);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setWidget(m_page);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_empty, 1);
    layout->addWidget(m_scroll, 1);
}

void EditorPanel::connectBench()
{
    connect(&m_bench.document, &TaskDocument::changed, this, &EditorPanel::showCurrent);
    connect(&m_bench.place, &CurrentPlace::stepChanged, this, &EditorPanel::showCurrent);
    connect(&m_bench.place, &CurrentPlace::wanted, this, &EditorPanel::focusPlace);
    connect(&m_bench.check, &LiveCheck::updated, this, &EditorPanel::showFindings);
    connect(&m_bench.library, &PluginLibrary::reloaded, this, &EditorPanel::rebuild);
}

const StepState *EditorPanel::currentStep() const
{
    return m_bench.document.state().step(m_bench.place.step());
}

void EditorPanel::showCurrent()
{
    const StepState *const step = currentStep();
    m_empty->setVisible(!step);
    m_scroll->setVisible(step);
    if (!step)
        return;
    if (!m_form || !m_form->fits(*step->operation)) {
        rebuild();
        return;
    }
    m_header->showStep(step->operation);
    m_form->showStep(step->id, *step->operation);
    showFindings();
}

/// Makes the form anew. The old one may just be handling a key, so it goes later.
void EditorPanel::rebuild()
{
    if (m_form) {
        m_column->removeWidget(m_form);
        m_form->hide();
        m_form->deleteLater();
        m_form.clear();
    }
    const StepState *const step = currentStep();
    if (!step)
        return;
    m_form = new StepForm(*step->operation, m_bench.document, m_page);
    m_column->insertWidget(1, m_form);
    showCurrent();
    m_form->show();
    m_scroll->ensureVisible(0, 0);
}

void EditorPanel::showFindings()
{
    if (m_form)
        m_form->setFindings(m_bench.check.findingsOf(m_bench.place.step()));
}

void EditorPanel::focusPlace(const EditPlace &place)
{
    if (!m_form || place.property.isEmpty() || place.step != m_bench.place.step())
        return;
    PropertyEditor *const editor = m_form->editorToFocus(place.property);
    if (!editor)
        return;
    editor->focusField();
    m_scroll->ensureWidgetVisible(editor);
}
