#pragma once

class QPainter;
class QPalette;
class QRect;
class QTextDocument;

/// Paints a faint dot for each space that is easily overlooked, at an end of a line or beside other
/// white space, and a mark for each line feed. Only within `seen`, in the coordinates of the
/// document, which are those of the painter.
void paintInvisibleMarks(QPainter &painter, const QTextDocument &document, const QPalette &palette,
                         const QRect &seen);
