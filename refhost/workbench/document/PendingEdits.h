#pragma once

#include <QObject>
#include <QPointer>
#include <QVector>

#include <functional>

/// What is being typed somewhere and has not reached the document yet, such as the text of a cell.
/// It is taken over before the task is saved, left or run.
class PendingEdits
{
public:
    /// `commit` takes over what `owner` holds; it says false when that cannot be taken as it is,
    /// and then has told the user why. It is forgotten with its owner.
    void add(QObject *owner, std::function<bool()> commit);

    /// Takes over everything. Whether nothing is left.
    bool commit() const;

private:
    struct Source
    {
        QPointer<QObject> owner;
        std::function<bool()> commit;
    };

    QVector<Source> m_sources;
};
