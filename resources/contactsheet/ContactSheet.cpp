// Draws SVG icons side by side at the sizes in which a host shows them, each with its file name.

#include <QFileInfo>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

namespace {

constexpr int iconSizes[] = {200, 48, 24};
constexpr int gap = 12;
constexpr int labelHeight = 28;
constexpr int cellsPerRow = 5;

QSize cellSize()
{
    // The large icon on the left, the small ones in a column beside it.
    return {gap + iconSizes[0] + gap + iconSizes[1] + gap, gap + iconSizes[0] + labelHeight};
}

void drawIcon(QPainter &painter, QSvgRenderer &icon, QPoint corner)
{
    QPoint at = corner + QPoint(gap, gap);
    icon.render(&painter, QRectF(at, QSize(iconSizes[0], iconSizes[0])));
    at.rx() += iconSizes[0] + gap;
    icon.render(&painter, QRectF(at, QSize(iconSizes[1], iconSizes[1])));
    at.ry() += iconSizes[1] + gap;
    icon.render(&painter, QRectF(at, QSize(iconSizes[2], iconSizes[2])));
}

bool drawSheet(QImage &sheet, const QStringList &files)
{
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(0x40, 0x40, 0x40));
    const QSize cell = cellSize();
    for (int i = 0; i < files.size(); ++i) {
        QSvgRenderer icon(files.at(i));
        if (!icon.isValid()) {
            std::fprintf(stderr, "contactsheet: %s: not an SVG picture\n", qPrintable(files.at(i)));
            return false;
        }
        const QPoint corner((i % cellsPerRow) * cell.width(), (i / cellsPerRow) * cell.height());
        drawIcon(painter, icon, corner);
        const QRect label(corner.x() + gap, corner.y() + cell.height() - labelHeight,
                          cell.width() - gap, labelHeight);
        painter.drawText(label, Qt::AlignLeft | Qt::AlignVCenter,
                         QFileInfo(files.at(i)).completeBaseName());
    }
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    // The letters in some icons are drawn for Arial; this has its measures where it is not there.
    QFont::insertSubstitution(QStringLiteral("Arial, Helvetica, sans-serif"),
                              QStringLiteral("Liberation Sans"));
    QStringList files = QCoreApplication::arguments().mid(1);
    if (files.size() < 2) {
        std::fprintf(stderr, "usage: contactsheet SHEET.png ICON.svg...\n");
        return 2;
    }
    const QString output = files.takeFirst();
    const QSize cell = cellSize();
    const int rows = (files.size() + cellsPerRow - 1) / cellsPerRow;
    QImage sheet(cell.width() * cellsPerRow, cell.height() * rows + gap, QImage::Format_RGB32);
    if (!drawSheet(sheet, files))
        return 2;
    if (!sheet.save(output)) {
        std::fprintf(stderr, "contactsheet: %s: cannot be written\n", qPrintable(output));
        return 2;
    }
    return 0;
}
