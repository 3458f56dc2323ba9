#pragma once

#include "refhost/workbench/variables/ValueDialog.h"

class QLabel;
class QSpinBox;
class QToolBar;
class SearchBar;
class WholeTextEdit;

/// A window with a whole text, of any size.
class TextViewer : public ValueDialog
{
    Q_OBJECT

public:
    /// Without a setter the text can be looked at only.
    TextViewer(const QString &title, const QString &text, ValueSetter setter, QWidget *parent);

    QVariant value() const override;
    bool isModified() const override;

    /// Replaces the text by that of a file in UTF-8. A problem is shown.
    void load(const QString &path);
    /// Writes the text to a file in UTF-8. A problem is shown.
    void save(const QString &path);

private:
    QToolBar *createBar();
    QAction *addAction(QToolBar &bar, const QString &name, const QString &symbol,
                       const QString &text, const QKeySequence &shortcut);
    QLayout *createFoot();
    void replaceFromClipboard();
    void chooseFileToLoad();
    void chooseFileToSave();
    void showState();

    WholeTextEdit *m_edit;
    SearchBar *m_search;
    QSpinBox *m_position;
    QLabel *m_where;
    QLabel *m_size;
};
