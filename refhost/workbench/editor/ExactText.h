#pragma once

#include <QString>

class QTextCursor;
class QTextDocument;

// Between texts and documents that hold them to the unit: lines are blocks, special characters
// inline objects (`SpecialCharacterObject`). QTextDocument::toPlainText would change some.

/// The text between two positions of the document.
QString exactText(const QTextDocument &document, int from, int to);

/// The whole text of the document.
QString exactText(const QTextDocument &document);

/// Puts `text` in place of what the cursor has selected.
void insertExactText(QTextCursor &cursor, const QString &text);

/// Makes `text` the text of the document. What is the same at the beginning and at the end is not
/// touched, so that cursors there stay where they are.
void setExactText(QTextDocument &document, const QString &text);
