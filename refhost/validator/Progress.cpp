#include "refhost/validator/Progress.h"

Progress::Progress(const QString &path)
    : m_file(path)
{
    if (!path.isEmpty() && !m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        qWarning("%s: cannot be written", qPrintable(path));
}

void Progress::note(const QString &activity)
{
    if (!m_file.isOpen())
        return;
    m_file.seek(0);
    m_file.resize(0);
    m_file.write(activity.toUtf8());
}
