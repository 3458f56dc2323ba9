#pragma once

#include <QStandardItemModel>

class PluginLibrary;
struct CatalogEntry;
struct Problem;

/// What the rows of the catalogue tell besides their text.
namespace CatalogRole {
enum {
    TypeId = Qt::UserRole + 1, ///< QString: of an operation, empty for all other rows
    Second,                    ///< QString: what is shown after the text, in a quiet colour
    Names,                     ///< QString: what an operation is called, for the filter
    Labels,                    ///< QString: the labels of its settings, for the filter
    Reason                     ///< QString: why a plug-in failed to load, with its file
};
}

/// The operations by their groups, in the order of the catalogue, and last the plug-ins that failed
/// to load. Filled anew when the plug-ins are.
class CatalogModel : public QStandardItemModel
{
    Q_OBJECT

public:
    /// The library has to outlive the model.
    explicit CatalogModel(const PluginLibrary &library, QObject *parent = nullptr);

    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;

Q_SIGNALS:
    /// Between these two all rows are replaced.
    void aboutToRebuild();
    void rebuilt();

private:
    void rebuild();
    void fill();
    void addFailures(const QList<Problem> &failures);
    QStandardItem *newGroup(const QString &name) const;
    QStandardItem *newOperation(const CatalogEntry &entry) const;

    const PluginLibrary &m_library;
};
