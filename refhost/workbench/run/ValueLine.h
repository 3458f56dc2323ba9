#pragma once

#include <QCoreApplication>
#include <QString>
#include <QVariant>

/// Values on one line for people. Takes no longer for a large value than for a small one.
class ValueLine
{
    Q_DECLARE_TR_FUNCTIONS(ValuePreview)

public:
    /// The value as it would stand in a task file. Control characters, unusual spaces and halves of
    /// surrogate pairs are escaped; of what is longer than `most` UTF-16 code units there is
    /// the beginning and how long it is; an invalid value tells that there is none.
    static QString of(const QVariant &value, int most = 60);

    /// The text without quotes, the same escaped in it.
    static QString visible(const QString &text);
};
