#pragma once

#include <QStringList>
#include <QTranslator>

/// Translates nothing but notes what it is asked for, as "context|text", and fails to find a plural
/// number or a disambiguation unnoticed: those are noted too.
class RecordingTranslator : public QTranslator
{
    Q_OBJECT

public:
    RecordingTranslator();
    ~RecordingTranslator() override;

    bool isEmpty() const override;
    QString translate(const char *context, const char *sourceText, const char *disambiguation,
                      int n) const override;

    /// What was asked so far, oldest first; it is forgotten by this call.
    QStringList takeRequests();

private:
    mutable QStringList m_requests;
};
