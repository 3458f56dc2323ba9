#include "refhost/workbench/library/PluginLibrary.h"

#include "refhost/engine/FileBytes.h"
#include "refhost/workbench/library/FileWatch.h"
#include "refhost/workbench/library/PluginImage.h"

#include "Operation.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>

namespace {

QByteArray checksum(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

/// The copies of this process, by what is in them: a library is loaded once, however often its file
/// comes back or another window asks for it. They go with the process.
struct Copies
{
    QTemporaryDir folder;
    QHash<QByteArray, QString> paths;
};

Copies &allCopies()
{
    static Copies copies;
    return copies;
}

/// A copy of the file with that content, under a name that no other content ever has; empty when it
/// cannot be written.
QString copyOf(const QString &file, const QByteArray &bytes)
{
    Copies &copies = allCopies();
    const QString name = QFileInfo(file).fileName();
    const QByteArray key = checksum(bytes) + name.toUtf8();
    if (copies.paths.contains(key))
        return copies.paths.value(key);
    const QDir folder(copies.folder.filePath(QString::number(copies.paths.size())));
    QString copy = folder.filePath(name);
    if (!copies.folder.isValid() || !folder.mkpath(QStringLiteral(".")) ||
        writeFileBytes(copy, separated(bytes)))
        return {};
    copies.paths.insert(key, copy);
    return copy;
}

} // namespace

PluginLibrary::PluginLibrary(const QStringList &files, const QString &language, QObject *parent)
    : QObject(parent)
    , m_files(files)
    , m_languages(language.isEmpty() ? QStringList() : QStringList(language))
    , m_watch(new FileWatch(this))
{
    loadFirst();
    m_watch->setFiles(m_files);
    connect(m_watch, &FileWatch::stirred, this, &PluginLibrary::lookAgain);
    updateWatch();
}

PluginLibrary::~PluginLibrary() = default;

void PluginLibrary::loadFirst()
{
    for (const QString &file : qAsConst(m_files)) {
        m_translations.insert_or_assign(file, PluginTranslation(file, m_languages));
        const Result<QByteArray> bytes = readFileBytes(file);
        if (!bytes)
            continue;
        m_checksums.insert(file, checksum(bytes.value()));
        const QString copy = copyOf(file, bytes.value());
        if (!copy.isEmpty())
            m_copies.insert(file, copy);
    }
    m_catalog = std::make_unique<OperationCatalog>(m_files, m_copies);
    if (m_catalog->failures().isEmpty())
        return;
    // One that looks for other libraries beside itself can only be loaded where it is.
    for (const Problem &failure : m_catalog->failures())
        m_copies.remove(failure.file);
    m_catalog = std::make_unique<OperationCatalog>(m_files, m_copies);
}

bool PluginLibrary::isInUse(const QString &file) const
{
    const std::vector<LoadedPlugin> &plugins = m_catalog->plugins();
    return std::any_of(plugins.cbegin(), plugins.cend(),
                       [&file](const LoadedPlugin &plugin) { return plugin.path() == file; });
}

QList<Problem> PluginLibrary::failures() const
{
    QList<Problem> failures;
    for (const Problem &failure : m_catalog->failures()) {
        if (!m_refused.contains(failure.file))
            failures.append(failure);
    }
    for (const QString &file : m_files) {
        if (m_refused.contains(file))
            failures.append(m_refused.value(file));
    }
    for (const auto &[file, translation] : m_translations) {
        if (translation.problem())
            failures.append(*translation.problem());
    }
    return failures;
}

void PluginLibrary::setUsedTypes(const std::function<QSet<QString>()> &usedTypes)
{
    m_usedTypes = usedTypes;
}

void PluginLibrary::lookAgain()
{
    for (const QString &file : qAsConst(m_files)) {
        const Result<QByteArray> bytes = readFileBytes(file);
        if (!bytes)
            continue; // most likely it is just being replaced
        const QByteArray sum = checksum(bytes.value());
        if (m_checksums.value(file) == sum)
            continue;
        m_checksums.insert(file, sum);
        load(file, bytes.value());
    }
    updateWatch();
}

void PluginLibrary::load(const QString &file, const QByteArray &bytes)
{
    const auto failure = [&file](const QString &why) {
        return Problem{Problem::Reason::PluginNotLoaded, file, {}, why};
    };
    if (!isWholeLibrary(bytes)) {
        refuse(file, failure(tr("文件不完整")));
        return;
    }
    const QString copy = copyOf(file, bytes);
    if (copy.isEmpty()) {
        refuse(file, failure(tr("无法在临时文件夹中建立副本")));
        return;
    }
    QHash<QString, QString> copies = m_copies;
    copies.insert(file, copy);
    // In place of the earlier one from here on, and gone again when the plug-in is not taken.
    PluginTranslation translation(file, m_languages);
    auto next = std::make_unique<OperationCatalog>(m_files, copies);
    if (const auto problem = objection(*next, file))
        refuse(file, *problem);
    else
        take(std::move(next), file, copy, std::move(translation));
}

/// What speaks against that catalogue, in which `file` is loaded anew: that it does without a
/// plug-in or a type of step which is in use.
std::optional<Problem> PluginLibrary::objection(const OperationCatalog &next,
                                                const QString &file) const
{
    for (const Problem &failure : next.failures()) {
        if (failure.file == file || isInUse(failure.file))
            return failure;
    }
    const QSet<QString> used = m_usedTypes ? m_usedTypes() : QSet<QString>();
    for (const QString &type : used) {
        if (m_catalog->find(type) && !next.find(type)) {
            return Problem{
                Problem::Reason::PluginNotLoaded, file, {}, tr("缺少任务用到的操作“%1”").arg(type)};
        }
    }
    return std::nullopt;
}

void PluginLibrary::take(std::unique_ptr<OperationCatalog> next, const QString &file,
                         const QString &copy, PluginTranslation translation)
{
    const bool again = isInUse(file);
    m_refused.remove(file);
    m_copies.insert(file, copy);
    m_translations.insert_or_assign(file, std::move(translation));
    m_past.push_back(std::move(m_catalog));
    m_catalog = std::move(next);
    const QString name = QFileInfo(file).fileName();
    Q_EMIT statusText(again ? tr("已重新加载 %1").arg(name) : tr("已加载 %1").arg(name));
    Q_EMIT reloaded();
    Q_EMIT failuresChanged();
}

void PluginLibrary::refuse(const QString &file, Problem problem)
{
    const QString name = QFileInfo(file).fileName();
    if (isInUse(file)) {
        problem.message = tr("%1；继续使用之前的版本").arg(problem.message);
        Q_EMIT statusText(tr("无法重新加载 %1，继续使用之前的版本").arg(name));
    } else {
        Q_EMIT statusText(tr("无法加载 %1").arg(name));
    }
    m_refused.insert(file, problem);
    Q_EMIT failuresChanged();
}

void PluginLibrary::updateWatch()
{
    m_watch->setRegular(!m_refused.isEmpty() || !m_catalog->failures().isEmpty());
}
