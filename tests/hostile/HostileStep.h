#pragma once

#include <QByteArray>
#include <QString>
#include <QVariantMap>

#include <functional>
#include <vector>

class VariableScope;

/// A step that asks for more than there is, or for what takes forever where it is done badly.
struct HostileStep
{
    enum class Ending {
        TooLarge,           ///< one warning that the result is too large, an unchanged scope
        WarningAndTooLarge, ///< one other warning, then the one above, an unchanged scope
        Warning,            ///< one other warning, an unchanged scope
        Result              ///< a result and no warning
    };

    QByteArray name;
    QString typeId;
    QVariantMap settings;
    Ending ending = Ending::TooLarge;
    /// Declares the variables. "r" (text), "l" (list) and "n" (number) are there for the result.
    std::function<void(VariableScope &)> declare;
    /// Of a result: whether it is as it should be.
    std::function<bool(const QVariant &)> isRight = [](const QVariant &) { return true; };
};

/// All of them, in an order that does not change.
std::vector<HostileStep> hostileSteps();

/// Runs the step called `name` in this process, which can take no more than 256 MiB on top of the
/// variables. Returns what is wrong with its ending, an empty text if nothing.
QString runHostileStep(const QByteArray &name);
