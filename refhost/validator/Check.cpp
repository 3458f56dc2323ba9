#include "refhost/validator/Check.h"

#include <QCoreApplication>

#include <utility>

Check::Check(CheckInfo info)
    : m_info(std::move(info))
{
}

Check::~Check() = default;

std::unique_ptr<QCoreApplication> Check::makeApplication(int &argc, char **argv) const
{
    return std::make_unique<QCoreApplication>(argc, argv);
}
