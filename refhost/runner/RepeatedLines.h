#pragma once

#include <QHash>
#include <QList>
#include <QString>

/// Lines of a kind on standard error, of which only the first are shown.
///
/// Two lines are of one kind if they belong to the same step and differ only in numbers and in what
/// stands between double quotes. When a step has had `mostKinds` kinds, all its other lines are one
/// more kind.
class RepeatedLines
{
public:
    static constexpr int mostShown = 1000;
    static constexpr int mostKinds = 20;

    /// Counts `line`. Returns true if it is one of the first of its kind. `step` is counted from 0;
    /// -1 for a line that belongs to no step.
    bool isShown(int step, const QString &line);

    /// Returns a line for each kind of which some were not shown, in the order in which the kinds
    /// came up: how many they were, and the first line of the kind.
    QStringList rest() const;

private:
    struct Kind
    {
        QString first;
        qint64 count = 0;
    };

    Kind &kindOf(int step, const QString &line);

    QList<Kind> m_kinds;
    QHash<QString, int> m_places;   ///< by the step and the line without what may differ
    QHash<int, int> m_kindsOfSteps; ///< how many there are
};
