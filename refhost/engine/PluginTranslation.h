#pragma once

#include "refhost/engine/Problem.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class QTranslator;

/// The texts of one plug-in in another language, from the file "<library base name>_<language>.qm"
/// beside it. The application has them as long as this object lives; of two for the same plug-in
/// the later one counts.
///
/// Made before the plug-in is loaded, since what a catalogue holds of it stays in the language it
/// was made in.
class PluginTranslation
{
public:
    /// Takes the first of `languages` that stands beside the library file at `plugin`. With none of
    /// them, or when the language of the sources comes first, texts stay as they are in the
    /// sources.
    PluginTranslation(const QString &plugin, const QStringList &languages);

    ~PluginTranslation();
    PluginTranslation(PluginTranslation &&other) noexcept;
    PluginTranslation &operator=(PluginTranslation &&other) noexcept;

    /// Why a file that is there cannot be used; texts stay as they are in the sources then.
    const std::optional<Problem> &problem() const { return m_problem; }

    /// The languages that stand beside the plug-in, sorted.
    static QStringList languagesOf(const QString &plugin);

    /// The file that is taken for these languages, empty when none is.
    static QString fileFor(const QString &plugin, const QStringList &languages);

private:
    QByteArray m_bytes; ///< the translator reads them where they are
    std::unique_ptr<QTranslator> m_translator;
    std::optional<Problem> m_problem;
};
