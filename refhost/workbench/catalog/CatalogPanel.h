#pragma once

#include <QSet>
#include <QString>
#include <QWidget>

class CatalogFilter;
class CatalogModel;
class QLineEdit;
class QTreeView;
struct Workbench;

/// The kinds of steps that can be added, by group, with a filter; and the plug-ins that failed to
/// load.
class CatalogPanel : public QWidget
{
    Q_OBJECT

public:
    /// The workbench has to outlive the panel.
    explicit CatalogPanel(Workbench &bench, QWidget *parent = nullptr);

    /// Shows the panel, in its dock where it is in one, and gives the filter the focus.
    void focusFilter();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void createFilter();
    void createTree();
    void connectModel();
    bool filterKey(int key);
    bool treeKey(int key);
    void setFilter(const QString &text);
    void showMatches();
    void showHint();
    void noteExpansion(const QModelIndex &group, bool isExpanded);
    void remember();
    void restore();
    QModelIndex indexOf(const QString &typeId) const;
    void add(const QModelIndex &index);
    void showMenu(const QPoint &position);

    Workbench &m_bench;
    CatalogModel *m_model;
    CatalogFilter *m_rows;
    QLineEdit *m_filter;
    QTreeView *m_tree;
    QSet<QString> m_collapsed; ///< the names of the groups that the user has closed
    QString m_current;         ///< the type that is current while the rows are replaced
};
