#pragma once

#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>

/// One text of a translation file, a ".ts".
struct TranslatedText
{
    QString context;
    QString source;
    QString state;     ///< "unfinished" and the like, empty when all is well
    QStringList forms; ///< one, or those for different numbers
};

Q_DECLARE_METATYPE(TranslatedText)

/// All texts of the file at `path`; none when it cannot be read.
QList<TranslatedText> readTranslations(const QString &path);

/// Whether there is a Chinese character in the text.
bool hasChinese(const QString &text);

/// Whether there is a letter of any script in the text.
bool hasLetters(const QString &text);

/// The places of a text that are filled, sorted. Of two that mean the same, one stands for both.
QStringList markersOf(const QString &text);

/// What is wrong with a translation, empty when nothing is.
QString faultOf(const TranslatedText &message);
