#pragma once

#include <QString>

#include <exception>
#include <optional>

/// What `call` throws, as a text; nothing when it returns.
template <typename Call>
std::optional<QString> thrownBy(const Call &call)
{
    try {
        call();
    } catch (const std::exception &exception) {
        return QString::fromLocal8Bit(exception.what());
    } catch (...) {
        return QStringLiteral("something that is no std::exception");
    }
    return std::nullopt;
}
