#pragma once

#include "refhost/engine/Result.h"

#include "PluginManifest.h"

#include <QString>

#include <memory>
#include <vector>

class Operation;

/// A plug-in that is loaded and fit for this host, with its prototypes. The library stays loaded to
/// the end of the process, since texts and objects that came from it may outlive this object.
class LoadedPlugin
{
public:
    /// Loads the library file at `path`. Problems carry Qt's own reason, or tell what about the
    /// plug-in this host cannot use. Where that file is a copy, `original` is the one it goes by.
    static Result<LoadedPlugin> load(const QString &path, const QString &original = {});

    ~LoadedPlugin();
    LoadedPlugin(LoadedPlugin &&other) noexcept;
    LoadedPlugin &operator=(LoadedPlugin &&other) noexcept;

    const QString &path() const { return m_path; }
    const PluginManifest &manifest() const { return m_manifest; }

    /// The prototypes in the plug-in's own order; they stay this object's.
    const std::vector<std::unique_ptr<Operation>> &prototypes() const { return m_prototypes; }

private:
    LoadedPlugin();

    QString m_path;
    PluginManifest m_manifest;
    std::vector<std::unique_ptr<Operation>> m_prototypes;
};
