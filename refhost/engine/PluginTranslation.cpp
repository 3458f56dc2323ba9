#include "refhost/engine/PluginTranslation.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/FileBytes.h"
#include "refhost/engine/LanguageName.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTranslator>

namespace {

const QLatin1String ending(".qm");

/// What the names of the translations of a plug-in begin with.
QString stemOf(const QString &plugin)
{
    return QFileInfo(plugin).completeBaseName() + QLatin1Char('_');
}

QString fileOf(const QString &plugin, const QString &language)
{
    return QFileInfo(plugin).path() + QLatin1Char('/') + stemOf(plugin) + language + ending;
}

} // namespace

PluginTranslation::PluginTranslation(const QString &plugin, const QStringList &languages)
{
    const QString file = fileFor(plugin, languages);
    if (file.isEmpty())
        return;
    // Not by its name: Qt would read the file where it is while somebody writes a new one.
    const Result<QByteArray> bytes = readFileBytes(file);
    if (!bytes) {
        m_problem = bytes.problem();
        return;
    }
    m_bytes = bytes.value();
    m_translator = std::make_unique<QTranslator>();
    const auto *const data = reinterpret_cast<const uchar *>(m_bytes.constData());
    if (m_translator->load(data, m_bytes.size()) && !m_translator->isEmpty()) {
        QCoreApplication::installTranslator(m_translator.get());
        return;
    }
    m_translator.reset();
    m_problem = {Problem::Reason::MalformedContent,
                 file,
                 {},
                 EngineText::tr("no translation that can be used; texts of the plug-in stay as "
                                "they are in its sources")};
}

PluginTranslation::~PluginTranslation() = default;
PluginTranslation::PluginTranslation(PluginTranslation &&other) noexcept = default;
PluginTranslation &PluginTranslation::operator=(PluginTranslation &&other) noexcept = default;

QStringList PluginTranslation::languagesOf(const QString &plugin)
{
    const QString stem = stemOf(plugin);
    const QStringList names = QFileInfo(plugin).dir().entryList(QDir::Files, QDir::Name);
    QStringList languages;
    for (const QString &name : names) {
        if (!name.startsWith(stem) || !name.endsWith(ending))
            continue;
        const QString language = name.mid(stem.size()).chopped(ending.size());
        if (isLanguageName(language))
            languages.append(language);
    }
    return languages;
}

QString PluginTranslation::fileFor(const QString &plugin, const QStringList &languages)
{
    for (const QString &language : languages) {
        const QStringList names = languageAndParents(language);
        for (const QString &name : names) {
            QString file = fileOf(plugin, name);
            if (QFileInfo(file).isFile())
                return file;
        }
        if (isSourceLanguage(language))
            break;
    }
    return {};
}
