#pragma once

#include "refhost/workbench/variables/CellEdit.h"
#include "refhost/workbench/variables/CellTable.h"

#include <QApplication>
#include <QTest>

// How a user edits the cells of a table.

/// The editor in a cell, opened by a key; null when the cell cannot be edited in place.
inline CellEdit *startEditing(CellTable &table, int row, int column)
{
    table.setFocus();
    table.setCurrentIndex(table.model()->index(row, column));
    QTest::keyClick(&table, Qt::Key_Return);
    return qobject_cast<CellEdit *>(QApplication::focusWidget());
}

/// Types another content into a cell, and leaves it.
inline void typeInto(CellTable &table, int row, int column, const QString &text)
{
    CellEdit *const edit = startEditing(table, row, column);
    QVERIFY(edit);
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
    QTest::keyClick(edit, Qt::Key_Return);
    QCoreApplication::processEvents();
}
