#include "window/line_icon.h"

#include "typing/line_icon.h"

#include <QFile>
#include <QSvgRenderer>

// In no namespace, because the macro declares a function there.
static void initWindowResources()
{
    Q_INIT_RESOURCE(workbench);
}

namespace workbench {

namespace {

QString drawingPath(const QString& name)
{
    initWindowResources();
    return QStringLiteral(":/workbench/icons/%1.svg").arg(name);
}

} // namespace

QIcon lineIcon(const QString& name)
{
    QFile file(drawingPath(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const auto draw = [drawing = file.readAll()](QPainter& painter, const QRect& rect, const QColor& colour) {
        QByteArray coloured = drawing;
        QSvgRenderer(coloured.replace("currentColor", colour.name().toLatin1())).render(&painter, rect);
    };
    return vlk::drawnIcon(draw, QPalette::WindowText);
}

QIcon applicationIcon()
{
    return QIcon(drawingPath(QStringLiteral("vlk-workbench")));
}

} // namespace workbench
