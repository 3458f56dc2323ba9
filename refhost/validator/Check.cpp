#include "refhost/validator/Check.h"

#include "refhost/validator/CheckContext.h"

#include <QCoreApplication>

#include <utility>

Check::Check(CheckInfo info)
    : m_info(std::move(info))
{
}

Check::~Check() = default;

std::optional<QString> Check::prepare(CheckContext &context) const
{
    switch (m_info.needs) {
    case Ground::Library:
        return context.loadLibrary();
    case Ground::Plugin:
        return context.loadPlugin();
    case Ground::File:
        break;
    }
    return std::nullopt;
}

std::unique_ptr<QCoreApplication> Check::makeApplication(int &argc, char **argv) const
{
    return std::make_unique<QCoreApplication>(argc, argv);
}
