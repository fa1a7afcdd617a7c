#include "gui/widgets/ToolbarIcon.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>

namespace {

const ToolbarIcon AllIcons[] = {ToolbarIcon::NewMonthly, ToolbarIcon::NewIndividual, ToolbarIcon::Open,
                                ToolbarIcon::Save,       ToolbarIcon::Delete,        ToolbarIcon::Close,
                                ToolbarIcon::Copy};

const QColor Outline(0x2e, 0x34, 0x36);
const QColor Paper(0xff, 0xff, 0xff);

// A sheet of paper with a folded corner, in a box of 32 units.
void page(QPainter& p, const QRectF& r)
{
    QPainterPath path;
    const qreal fold = r.width() * 0.3;
    path.moveTo(r.topLeft());
    path.lineTo(r.right() - fold, r.top());
    path.lineTo(r.right(), r.top() + fold);
    path.lineTo(r.bottomRight());
    path.lineTo(r.bottomLeft());
    path.closeSubpath();
    p.setPen(QPen(Outline, 1.5));
    p.setBrush(Paper);
    p.drawPath(path);
    p.drawLine(QPointF(r.right() - fold, r.top()), QPointF(r.right() - fold, r.top() + fold));
    p.drawLine(QPointF(r.right() - fold, r.top() + fold), QPointF(r.right(), r.top() + fold));
}

void lines(QPainter& p, const QRectF& r, int count)
{
    p.setPen(QPen(QColor(0x88, 0x8a, 0x85), 1.5));
    for (int i = 0; i < count; ++i) {
        const qreal y = r.top() + 12 + i * 4;
        p.drawLine(QPointF(r.left() + 4, y), QPointF(r.right() - 4, y));
    }
}

// A round badge in a corner: a plus (new) or a cross (close).
void badge(QPainter& p, const QColor& colour, bool plus)
{
    const QRectF c(17, 17, 14, 14);
    p.setPen(QPen(colour.darker(140), 1.2));
    p.setBrush(colour);
    p.drawEllipse(c);
    p.setPen(QPen(Qt::white, 2.4, Qt::SolidLine, Qt::RoundCap));
    const QPointF m = c.center();
    if (plus) {
        p.drawLine(m + QPointF(-4, 0), m + QPointF(4, 0));
        p.drawLine(m + QPointF(0, -4), m + QPointF(0, 4));
    } else {
        p.drawLine(m + QPointF(-3.2, -3.2), m + QPointF(3.2, 3.2));
        p.drawLine(m + QPointF(-3.2, 3.2), m + QPointF(3.2, -3.2));
    }
}

void drawNewIndividual(QPainter& p)
{
    const QRectF r(5, 2, 20, 26);
    page(p, r);
    lines(p, r, 3);
    badge(p, QColor(0x4e, 0x9a, 0x06), true);
}

void drawNewMonthly(QPainter& p)
{
    // A calendar sheet: a red band on top, the days below.
    const QRectF r(3, 4, 24, 23);
    p.setPen(QPen(Outline, 1.5));
    p.setBrush(Paper);
    p.drawRoundedRect(r, 2, 2);
    p.setBrush(QColor(0xcc, 0x00, 0x00));
    p.drawRoundedRect(QRectF(r.left(), r.top(), r.width(), 6), 2, 2);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x55, 0x57, 0x53));
    for (int row = 0; row < 3; ++row)
        for (int col = 0; col < 4; ++col)
            p.drawRect(QRectF(r.left() + 3 + col * 5, r.top() + 9 + row * 4.5, 3, 2.5));
    badge(p, QColor(0x4e, 0x9a, 0x06), true);
}

void drawOpen(QPainter& p)
{
    p.setPen(QPen(QColor(0x8f, 0x59, 0x02), 1.5));
    p.setBrush(QColor(0xc1, 0x7d, 0x11));
    QPainterPath back;
    back.moveTo(3, 8);
    back.lineTo(12, 8);
    back.lineTo(14, 11);
    back.lineTo(27, 11);
    back.lineTo(27, 27);
    back.lineTo(3, 27);
    back.closeSubpath();
    p.drawPath(back);
    p.setBrush(QColor(0xfc, 0xe9, 0x4f));
    QPainterPath front;
    front.moveTo(3, 27);
    front.lineTo(8, 15);
    front.lineTo(31, 15);
    front.lineTo(27, 27);
    front.closeSubpath();
    p.drawPath(front);
}

void drawSave(QPainter& p)
{
    const QRectF r(4, 4, 24, 24);
    QPainterPath disk;
    disk.moveTo(r.topLeft());
    disk.lineTo(r.right() - 4, r.top());
    disk.lineTo(r.right(), r.top() + 4);
    disk.lineTo(r.bottomRight());
    disk.lineTo(r.bottomLeft());
    disk.closeSubpath();
    p.setPen(QPen(QColor(0x20, 0x4a, 0x87), 1.5));
    p.setBrush(QColor(0x34, 0x65, 0xa4));
    p.drawPath(disk);
    p.setBrush(Paper);
    p.drawRect(QRectF(r.left() + 4, r.top() + 13, r.width() - 8, r.height() - 13));
    p.setBrush(QColor(0xba, 0xbd, 0xb6));
    p.drawRect(QRectF(r.left() + 6, r.top(), 11, 8));
    p.setBrush(QColor(0x20, 0x4a, 0x87));
    p.drawRect(QRectF(r.left() + 13, r.top() + 1.5, 2.5, 5));
}

void drawDelete(QPainter& p)
{
    // A waste bin.
    p.setPen(QPen(QColor(0xa4, 0x00, 0x00), 1.5));
    p.setBrush(QColor(0xef, 0x29, 0x29));
    QPainterPath bin;
    bin.moveTo(8, 10);
    bin.lineTo(24, 10);
    bin.lineTo(22.5, 29);
    bin.lineTo(9.5, 29);
    bin.closeSubpath();
    p.drawPath(bin);
    p.drawRoundedRect(QRectF(5, 6, 22, 3.5), 1, 1);
    p.drawRect(QRectF(13, 3, 6, 3));
    p.setPen(QPen(Qt::white, 1.6, Qt::SolidLine, Qt::RoundCap));
    for (qreal x : {12.5, 16.0, 19.5})
        p.drawLine(QPointF(x, 13), QPointF(x, 26));
}

void drawClose(QPainter& p)
{
    const QRectF r(5, 2, 20, 26);
    page(p, r);
    lines(p, r, 3);
    badge(p, QColor(0xcc, 0x00, 0x00), false);
}

void drawCopy(QPainter& p)
{
    const QRectF back(3, 2, 17, 21);
    page(p, back);
    const QRectF front(12, 9, 17, 21);
    page(p, front);
    p.setPen(QPen(QColor(0x34, 0x65, 0xa4), 1.8));
    for (int i = 0; i < 3; ++i) {
        const qreal y = front.top() + 9 + i * 4;
        p.drawLine(QPointF(front.left() + 3, y), QPointF(front.right() - 3, y));
    }
}

void draw(ToolbarIcon which, QPainter& p)
{
    switch (which) {
    case ToolbarIcon::NewMonthly: drawNewMonthly(p); break;
    case ToolbarIcon::NewIndividual: drawNewIndividual(p); break;
    case ToolbarIcon::Open: drawOpen(p); break;
    case ToolbarIcon::Save: drawSave(p); break;
    case ToolbarIcon::Delete: drawDelete(p); break;
    case ToolbarIcon::Close: drawClose(p); break;
    case ToolbarIcon::Copy: drawCopy(p); break;
    }
}

// Grey and faded: how a disabled command looks, whatever the picture.
QImage disabledLook(QImage image)
{
    image = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int grey = 128 + qGray(line[x]) / 2;
            line[x] = qRgba(grey, grey, grey, qAlpha(line[x]) * 2 / 5);
        }
    }
    return image;
}

// Paints a theme icon or one of our drawings, at any size, with the disabled look in the disabled mode.
class ToolbarIconEngine : public QIconEngine {
public:
    ToolbarIconEngine(ToolbarIcon which, const QIcon& theme) : m_which(which), m_theme(theme) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
        QImage image = render(rect.size() * ratio, state);
        if (mode == QIcon::Disabled)
            image = disabledLook(image);
        image.setDevicePixelRatio(ratio);
        painter->drawImage(rect, image);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QImage image = render(size, state);
        if (mode == QIcon::Disabled)
            image = disabledLook(image);
        return QPixmap::fromImage(image);
    }

    QIconEngine* clone() const override { return new ToolbarIconEngine(m_which, m_theme); }

private:
    QImage render(const QSize& size, QIcon::State state) const
    {
        if (!m_theme.isNull())
            return m_theme.pixmap(size, QIcon::Normal, state).toImage();
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter p(&image);
        p.setRenderHint(QPainter::Antialiasing);
        p.scale(size.width() / 32.0, size.height() / 32.0);
        draw(m_which, p);
        return image;
    }

    ToolbarIcon m_which;
    QIcon m_theme;
};

}  // namespace

QString toolbarIconThemeName(ToolbarIcon which)
{
    switch (which) {
    case ToolbarIcon::NewMonthly: return QStringLiteral("x-office-calendar");
    case ToolbarIcon::NewIndividual: return QStringLiteral("document-new");
    case ToolbarIcon::Open: return QStringLiteral("document-open");
    case ToolbarIcon::Save: return QStringLiteral("document-save");
    case ToolbarIcon::Delete: return QStringLiteral("edit-delete");
    case ToolbarIcon::Close: return QStringLiteral("window-close");
    case ToolbarIcon::Copy: return QStringLiteral("edit-copy");
    }
    return QString();
}

bool toolbarThemeIsComplete()
{
    if (QIcon::themeName().isEmpty())
        return false;
    for (ToolbarIcon i : AllIcons)
        if (!QIcon::hasThemeIcon(toolbarIconThemeName(i)))
            return false;
    return true;
}

QIcon toolbarIcon(ToolbarIcon which)
{
    const QIcon theme = toolbarThemeIsComplete() ? QIcon::fromTheme(toolbarIconThemeName(which)) : QIcon();
    return QIcon(new ToolbarIconEngine(which, theme));
}
