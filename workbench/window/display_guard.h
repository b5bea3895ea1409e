#pragma once

// Qt ends a program that finds no display by aborting it. While one of these lives, such an end says one
// sentence on the terminal and leaves with an exit code instead. What the log gets meanwhile is held back,
// and is passed on when all went well.

#include <QByteArray>
#include <QString>

#include <vector>

namespace workbench {

class DisplayGuard
{
public:
    DisplayGuard(const QString& sentence, int exitCode);
    ~DisplayGuard();
    DisplayGuard(const DisplayGuard&) = delete;
    DisplayGuard& operator=(const DisplayGuard&) = delete;

private:
    struct Line
    {
        QtMsgType type;
        QByteArray category;
        QString text;
    };

    static void listen(QtMsgType type, const QMessageLogContext& context, const QString& message);

    QByteArray sentence_;
    int exitCode_;
    QtMessageHandler before_;
    std::vector<Line> held_;
};

} // namespace workbench
