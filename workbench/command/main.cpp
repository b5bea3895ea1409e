// r7106: configurations of trackers in scripts, without a display.

#include "command/arguments.h"
#include "command/commands.h"
#include "command/file_names.h"
#include "command/interruption.h"
#include "command/output.h"
#include "command/output_ending.h"
#include "command/output_guard.h"
#include "command/pdf/report_pdf.h"
#include "command/system_reason.h"
#include "plugin/base/replace_file.h"
#include "review/value_text.h"
#include "window/installed_files.h"
#include "window/languages.h"

#include <QCoreApplication>
#include <QLibrary>

#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace {

using namespace workbench::command;
using workbench::text;

using Command = int (*)(const Call& call, Output& output);

struct CommandFunction
{
    const char* name;
    Command run;
};

// A report of its own needs an application of its own.
constexpr CommandFunction kFunctions[] = {{"check", check}, {"diff", diff},       {"compare", compare},
                                          {"get", get},     {"set", set},         {"apply", apply},
                                          {"info", info},   {"convert", convert}, {"fuel", fuel}};

Output::Readers readersOf(const Call& call)
{
    return call.secrets ? Output::Readers::Owner : Output::Readers::Usual;
}

int run(const Call& call)
{
    for (const CommandFunction& function : kFunctions) {
        if (call.command != QLatin1String(function.name))
            continue;
        Output output(call.output, readersOf(call));
        // Before anything is changed, or worked on for long.
        if (!output.isReachable())
            return output.close() ? Nothing : Failed;
        const int status = function.run(call, output);
        // What came to nothing is no reason to empty a file that was there.
        if (status == Failed && output.isEmptyFile())
            output.drop();
        if (output.hasMask() && !call.secrets && !call.json)
            writeError(complaint(QStringLiteral("r7106"), text("cli_326")));
        const bool isWritten = output.close();
        endIfInterrupted();
        return isWritten ? status : Failed;
    }
    return Failed;
}

// With what is to be told of it once it is there, if anything.
int writeReport(Output& output, const QByteArray& report, const QString& note)
{
    output.write(report);
    if (!output.close())
        return Failed;
    if (!note.isEmpty())
        writeError(complaint(QStringLiteral("r7106"), note));
    return Nothing;
}

bool isPdf(const Call& call)
{
    return call.output.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive);
}

// What is left to be done once the application is gone.
struct Pdf
{
    Call call;
    QString html;
    QString library;
    QString notLoaded;
    QString notWritten;
    QString note;
};

int writePdf(const Pdf& pdf, int argc, char** argv)
{
    QLibrary library(pdf.library);
    const auto make = reinterpret_cast<ReportPdf>(library.resolve(kReportPdfName));
    QByteArray made;
    if (make)
        make(pdf.html, &made, argc, argv);
    if (made.isEmpty()) {
        writeError(complaint(QStringLiteral("r7106"), pdf.notLoaded));
        return Failed;
    }
    Output output(pdf.call.output, readersOf(pdf.call), pdf.notWritten);
    return writeReport(output, made, pdf.note);
}

// Standard input and output that are closed stay so: else a file that is opened would take their place, and
// get what is meant for them.
void holdClosedStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) < 0)
            open("/dev/null", (stream == STDIN_FILENO ? O_WRONLY : O_RDONLY) | O_CLOEXEC);
    }
}

int report(const Call& call, Pdf* pdf)
{
    int status = Nothing;
    const QString html = reportHtml(call, &status);
    if (status != Nothing)
        return status;
    const bool hasMask = !call.secrets && html.contains(QString::fromUtf8(vlk::kSecretDots));
    const QString note = hasMask ? text("cli_326") : QString();
    if (isPdf(call)) {
        keepReasons();
        *pdf = {call,
                html,
                workbench::libraryPath(QStringLiteral("r7106_pdf.so")),
                text("cli_025"),
                text("cli_003"),
                note};
        return Nothing;
    }
    Output output(call.output, readersOf(call));
    return writeReport(output, html.toUtf8(), note);
}

int runWithTexts(int& argc, char** argv, Pdf* pdf)
{
    QByteArrayList all;
    for (int i = 0; i < argc; ++i)
        all << argv[i];
    const QCoreApplication application(argc, argv);
    workbench::Languages languages;
    const QString language = languageOf(all);
    languages.set(workbench::Languages::isKnown(language) ? language : workbench::Languages::ofSystem());
    const Arguments arguments = readArguments(all);
    if (arguments.end) {
        if (*arguments.end == Failed) {
            writeError(arguments.message);
            return Failed;
        }
        Output output({}, Output::Readers::Usual);
        output.write(arguments.message);
        return output.close() ? Nothing : Failed;
    }
    QString reason = whyNotReplaced(arguments.call);
    if (reason.isEmpty())
        reason = whyOtherEnding(arguments.call);
    if (!reason.isEmpty()) {
        writeError(complaint(arguments.call.output, reason));
        return Failed;
    }
    return arguments.call.command == QLatin1String("report") ? report(arguments.call, pdf)
                                                             : run(arguments.call);
}

} // namespace

int main(int argc, char* argv[])
{
    holdClosedStreams();
    // Who has read enough of the output ends the program.
    std::signal(SIGPIPE, SIG_DFL);
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--") == 0)
            break;
        if (std::strcmp(argv[i], "--version") == 0) {
            if (std::puts("r7106 " VLK_VERSION) >= 0 && std::fflush(stdout) == 0)
                return Nothing;
            std::perror("r7106");
            return Failed;
        }
    }
    // What is logged, the commands tell in their own words.
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& message) {
        if (type == QtCriticalMsg || type == QtFatalMsg)
            writeError(complaint(QStringLiteral("r7106"), message));
    });
    prepareFileNames();
    Pdf pdf;
    const int status = runWithTexts(argc, argv, &pdf);
    return pdf.html.isEmpty() ? status : writePdf(pdf, argc, argv);
}
