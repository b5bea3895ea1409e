#include "window/line_icon.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

// In no namespace, because the macro declares a function there.
static void initResources()
{
    Q_INIT_RESOURCE(workbench);
}

namespace {

class LineIconEngine : public QIconEngine
{
public:
    explicit LineIconEngine(const QByteArray& drawing) : drawing_(drawing) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText;
        const QColor colour = QApplication::palette().color(group, role);
        QByteArray coloured = drawing_;
        QSvgRenderer(coloured.replace("currentColor", colour.name().toLatin1())).render(painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new LineIconEngine(drawing_); }

private:
    QByteArray drawing_;
};

QString drawingPath(const QString& name)
{
    initResources();
    return QStringLiteral(":/workbench/icons/%1.svg").arg(name);
}

} // namespace

namespace workbench {

QIcon lineIcon(const QString& name)
{
    QFile file(drawingPath(name));
    return file.open(QIODevice::ReadOnly) ? QIcon(new LineIconEngine(file.readAll())) : QIcon();
}

QIcon applicationIcon()
{
    return QIcon(drawingPath(QStringLiteral("vlk-workbench")));
}

} // namespace workbench
