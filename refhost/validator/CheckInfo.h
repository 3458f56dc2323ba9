#pragma once

#include <QJsonObject>
#include <QString>

/// What a check stands on, each with all before it.
enum class Ground {
    File,    ///< the file alone, which is only read
    Library, ///< the library, loaded, with its root object
    Plugin   ///< the plug-in as this host accepts it
};

/// What there is to know about a check before it runs.
struct CheckInfo
{
    QString id;                     ///< stable, "theme.check"
    int level = 1;                  ///< 1 to 5: the least level that includes it
    QString sentence;               ///< what holds when it passes
    Ground needs = Ground::Plugin;  ///< without this ground the check is skipped
    Ground provides = Ground::File; ///< that this ground is there when the check passes
    QString option = {};            ///< the check runs with this option of oprun only, unless empty

    QJsonObject toJson() const;

    /// Reads what `toJson` gave.
    static CheckInfo fromJson(const QJsonObject &json);
};
