#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

// Cells as spreadsheets put them on the clipboard: tabulators between the cells of a row, a line
// feed after each row, and quotes around a cell that has one of these in it.

/// The rows of such a text; CR LF and CR end a row as well.
QVector<QStringList> cellsOfText(const QString &text);

/// The text of such rows.
QString textOfCells(const QVector<QStringList> &rows);
