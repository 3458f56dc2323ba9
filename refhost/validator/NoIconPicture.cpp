#include "refhost/validator/IconPicture.h"

#include <QCoreApplication>

// In place of IconPicture.cpp where Qt Gui or Qt Svg is missing.

bool canRenderIcons()
{
    return false;
}

std::unique_ptr<QCoreApplication> makeIconApplication(int &argc, char **argv)
{
    return std::make_unique<QCoreApplication>(argc, argv);
}

QString iconFault(const QString &path, int size)
{
    Q_UNUSED(path)
    Q_UNUSED(size)
    return {};
}
