#include "tests/support/RecordingTranslator.h"

#include <QCoreApplication>

#include <utility>

RecordingTranslator::RecordingTranslator()
{
    QCoreApplication::installTranslator(this);
}

RecordingTranslator::~RecordingTranslator()
{
    QCoreApplication::removeTranslator(this);
}

bool RecordingTranslator::isEmpty() const
{
    return false;
}

QString RecordingTranslator::translate(const char *context, const char *sourceText,
                                       const char *disambiguation, int n) const
{
    QString request = QString::fromUtf8(context) + '|' + QString::fromUtf8(sourceText);
    if (disambiguation)
        request += QStringLiteral("|disambiguation");
    if (n != -1)
        request += QStringLiteral("|plural");
    m_requests.append(request);
    return {};
}

QStringList RecordingTranslator::takeRequests()
{
    return std::exchange(m_requests, {});
}
