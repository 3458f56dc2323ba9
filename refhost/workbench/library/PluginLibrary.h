#pragma once

#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/PluginTranslation.h"

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QStringList>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

class FileWatch;

/// The plug-ins of the window and the catalogue they make up. When the file of a plug-in becomes
/// another one, it is loaded anew, and its translation with it.
///
/// Plug-ins are loaded from copies: a library that is loaded knows no other under its path, and is
/// not to be written over. Earlier versions stay loaded, and their catalogues alive, to the end.
class PluginLibrary : public QObject
{
    Q_OBJECT

public:
    /// Loads the plug-ins in `files`, and watches these. Their texts are in `language` where a
    /// translation stands beside them, otherwise as in the sources.
    explicit PluginLibrary(const QStringList &files, const QString &language = {},
                           QObject *parent = nullptr);
    ~PluginLibrary() override;

    /// The catalogue of the plug-ins as they are loaded now; another one after `reloaded`.
    const OperationCatalog &catalog() const { return *m_catalog; }

    /// Why files cannot be used as they are now, those included of which an earlier version is in
    /// use; translations too.
    QList<Problem> failures() const;

    /// Types of steps that are in use. A version that does without one of them is not taken.
    void setUsedTypes(const std::function<QSet<QString>()> &usedTypes);

    /// Looks at the files now, and loads what is another.
    void lookAgain();

Q_SIGNALS:
    /// The catalogue is another one.
    void reloaded();
    /// `failures` are others.
    void failuresChanged();
    /// What has been done, for the status bar.
    void statusText(const QString &text);

private:
    void loadFirst();
    bool isInUse(const QString &file) const;
    void load(const QString &file, const QByteArray &bytes);
    std::optional<Problem> objection(const OperationCatalog &next, const QString &file) const;
    void take(std::unique_ptr<OperationCatalog> next, const QString &file, const QString &copy,
              PluginTranslation translation);
    void refuse(const QString &file, Problem problem);
    void updateWatch();

    QStringList m_files;
    QStringList m_languages;
    QHash<QString, QString> m_copies;
    QHash<QString, QByteArray> m_checksums;              ///< of each file as it was looked at last
    std::map<QString, PluginTranslation> m_translations; ///< by the file of the plug-in
    QHash<QString, Problem> m_refused;                   ///< of a file as it is now
    std::vector<std::unique_ptr<OperationCatalog>> m_past;
    std::unique_ptr<OperationCatalog> m_catalog;
    std::function<QSet<QString>()> m_usedTypes;
    FileWatch *m_watch;
};
