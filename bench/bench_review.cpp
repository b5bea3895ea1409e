// What an edit costs with its differences, marks, advice and step of undo, a key stroke of a search in both
// languages, and the opening of a panel full of differences; each against the same without them.

#include "bench/opened_dialogs.h"
#include "bench/side_by_side.h"
#include "dialog/config_pages.h"
#include "tests/support/device.h"
#include "window/key_translator.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>

namespace {

// Two settings in turns, so that each edit is a step of its own.
class Edits
{
public:
    explicit Edits(vlk::PageSettings& page)
        : page_(page), rows_{page.rowAt(QStringLiteral("SRV1/port")), page.rowAt(QStringLiteral("SRV2/port"))}
    {
    }
    void next()
    {
        ++count_;
        page_.binder().set(rows_[count_ % 2], QString::number(1000 + count_ % 9000));
    }

private:
    vlk::PageSettings& page_;
    const int rows_[2];
    int count_ = 0;
};

void edit(benchmark::State& state, VLK_Widget_Config& dialog)
{
    VLK_Form_Config_Transfer plain(nullptr);
    Edits reviewed(*dialog.review().history().pages().front());
    Edits unseen(plain.settings());
    bench::sideBySide(
        state, "x plain edit",
        [&] {
            reviewed.next();
            dialog.review().history().settle();
        },
        [&] { unseen.next(); });
}

void editWithReview(benchmark::State& state)
{
    VLK_Widget_Config dialog;
    bench::openConfiguration(dialog);
    edit(state, dialog);
}

// With the panel open on what a preset would change.
void editBesidePreset(benchmark::State& state)
{
    VLK_Widget_Config dialog;
    bench::openConfiguration(dialog);
    const QTemporaryDir folder;
    QFile preset(folder.filePath(QStringLiteral("preset.xml")));
    if (!preset.open(QIODevice::WriteOnly) ||
        preset.write("<DEVICE creator=\"preset\"><TRANS><SRV1 addr=\"a.example.com\"/></TRANS>"
                     "<TRACK><POINTS angle=\"7\"/></TRACK></DEVICE>") < 0)
        qFatal("no preset");
    preset.close();
    if (!dialog.showPreset(preset.fileName()))
        qFatal("no preset is shown");
    edit(state, dialog);
}

void press(QLineEdit* line, QChar sign)
{
    QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, QString(sign));
    QCoreApplication::sendEvent(line, &key);
}

void searchKeyStroke(benchmark::State& state)
{
    workbench::KeyTranslator english;
    if (!english.load(QStringLiteral(VLK_TEXTS "/en.qm")))
        qFatal("no texts in " VLK_TEXTS);
    TestDevice device;
    device.texts = [&english](const QString& /*language*/, const QString& key) {
        return english.translate("", key.toLatin1().constData());
    };
    device.initialize(nullptr);
    {
        VLK_Widget_Config dialog;
        bench::openConfiguration(dialog);
        auto* find = dialog.findChild<QLineEdit*>(QStringLiteral("lineEdit_Find"));
        QLineEdit plain;
        const QString words = QStringLiteral("скорость km");
        int at = 0;
        bench::sideBySide(
            state, "x plain line",
            [&] {
                if (at % words.size() == 0)
                    find->clear();
                press(find, words[at++ % words.size()]);
            },
            [&] { press(&plain, words[at % words.size()]); });
    }
    vlkDevice = nullptr;
}

void openFullPanel(benchmark::State& state)
{
    VLK_Widget_Config dialog;
    bench::openConfiguration(dialog);
    const QTemporaryDir folder;
    QFile other(folder.filePath(QStringLiteral("other.xml")));
    // An element with more keys is taken for damage.
    constexpr int keysOfSection = 575;
    constexpr int leastDifferences = 1500;
    QByteArray text = "<DEVICE>";
    for (const char* section : {"OTHER", "MORE"}) {
        text += QByteArray("<") + section;
        for (int key = 0; key < keysOfSection; ++key)
            text += " key" + QByteArray::number(key) + "=\"1\"";
        text += "/>";
    }
    if (!other.open(QIODevice::WriteOnly) || other.write(text + "</DEVICE>") < 0)
        qFatal("no file to compare with");
    other.close();
    const bool isRead =
        dialog.review().compareWith(vlk::ConfigurationReview::Against::OtherFile, other.fileName());
    const int differences = dialog.review().differences().count();
    if (!isRead || differences < leastDifferences)
        qFatal("the panel is not full: %d differences", differences);
    state.counters["differences"] = differences;
    auto* button = dialog.findChild<QToolButton*>(QStringLiteral("toolButton_Differences"));
    bench::sideBySide(
        state, "x empty dialog",
        [&] {
            button->setChecked(true);
            bench::settle();
            button->setChecked(false);
        },
        bench::openEmptyDialog);
}

BENCHMARK(editWithReview)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(editBesidePreset)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(searchKeyStroke)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(openFullPanel)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
