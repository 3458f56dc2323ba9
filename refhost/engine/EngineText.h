#pragma once

#include "VarType.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

struct PropertySchema;

/// What the engine says to people: `EngineText::tr("...")`, in English unless a translation of the
/// context "Engine" is installed. Texts that programs read, such as the place of a problem, are
/// none of these. A text that is kept stays in the language it was made in.
class EngineText
{
    Q_DECLARE_TR_FUNCTIONS(Engine)
};

// How things are called within such texts.

/// "steps[2]": the step at `index`, counted from 0. A translation may count from 1.
QString stepText(int index);

/// A property by its name. A translation may use the label that its editor shows.
QString propertyText(const PropertySchema &property);

/// The choices of a property: those of task files where `propertyText` gives the name that stands
/// there, those of its editor where it gives the label.
QStringList choicesText(const PropertySchema &property);

/// A type by its word in task files; empty for `VarType::None`.
QString typeText(VarType type);

/// The types in a list of words, such as "int,double"; a word that is not known as it is.
QStringList typeTexts(const QString &words);

/// "a,b,c": words as they stand in an annotation.
QString wordsText(const QStringList &words);

/// "a, b, c".
QString listText(const QStringList &texts);

/// "a or b or c".
QString choiceText(const QStringList &texts);
