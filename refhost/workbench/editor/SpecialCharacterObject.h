#pragma once

#include <QObject>
#include <QTextFormat>
#include <QTextObjectInterface>

class QWidget;

/// Draws the special characters of a document as small marks. In the document each is one inline
/// object, whose format carries the character.
class SpecialCharacterObject : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    static constexpr int Type = QTextFormat::UserObject + 1;

    /// Takes font and colours from `editor`, which becomes the parent.
    explicit SpecialCharacterObject(QWidget *editor);

    /// The format of an inline object that stands for `character`.
    static QTextCharFormat formatOf(const QString &character);

    /// The character behind a format, empty when it is no format of such an object.
    static QString characterOf(const QTextFormat &format);

    QSizeF intrinsicSize(QTextDocument *document, int position, const QTextFormat &format) override;
    void drawObject(QPainter *painter, const QRectF &rect, QTextDocument *document, int position,
                    const QTextFormat &format) override;

private:
    QFont markFont() const;

    QWidget *m_editor;
};
