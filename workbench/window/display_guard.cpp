#include "window/display_guard.h"

#include <cstdio>
#include <cstdlib>

namespace workbench {

namespace {

DisplayGuard* theGuard = nullptr;

} // namespace

DisplayGuard::DisplayGuard(const QString& sentence, int exitCode)
    : sentence_(sentence.toLocal8Bit()), exitCode_(exitCode)
{
    theGuard = this;
    before_ = qInstallMessageHandler(&DisplayGuard::listen);
}

DisplayGuard::~DisplayGuard()
{
    theGuard = nullptr;
    qInstallMessageHandler(before_);
    for (const Line& line : held_)
        before_(line.type, {nullptr, 0, nullptr, line.category.constData()}, line.text);
}

void DisplayGuard::listen(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type != QtFatalMsg) {
        theGuard->held_.push_back({type, context.category, message});
        return;
    }
    std::fprintf(stderr, "%s\n", theGuard->sentence_.constData());
    std::fflush(stderr);
    // The application is not there yet, so nothing has to be taken down.
    std::_Exit(theGuard->exitCode_);
}

} // namespace workbench
