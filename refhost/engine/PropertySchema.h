#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

/// One property of an operation as the editor is told about it.
struct PropertySchema
{
    QString name;
    QString typeName;       ///< the C++ type, such as "QString"
    QString label;          ///< as it stands in the sources of the plug-in
    QString shownLabel;     ///< the same in the language of the plug-in's translation
    QString editor;         ///< the editor word, empty when the type decides
    QString restrictionKey; ///< "varref_kind", "varref_type" or "varname_type", may be empty
    QString restriction;    ///< the type words of that key, separated by commas
    QStringList choices;    ///< the labels of a choice list, in the order of the stored values, as
                            ///< they stand in the sources of the plug-in and in task files
    QStringList shownChoices; ///< the same in the language of the plug-in's translation
    QString conditionName;    ///< the property that decides whether this one is shown, may be empty
    QList<int> conditionValues; ///< the values of that property which show this one
    QVariant defaultValue;
};
