#pragma once

#include <QAction>
#include <QList>
#include <QObject>

class TaskDocument;

/// Undo and redo, which say what they would undo and redo.
class EditActions : public QObject
{
    Q_OBJECT

public:
    /// The document has to outlive the actions.
    explicit EditActions(TaskDocument &document, QObject *parent = nullptr);

    QList<QAction *> actions() const { return {m_undo, m_redo}; }

private:
    void follow();

    TaskDocument &m_document;
    QAction *m_undo;
    QAction *m_redo;
};
