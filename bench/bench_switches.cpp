// What people do in the open configuration dialog and see at once: an edit with its rules, another device on
// the serial line, another type of wireless sensor, the 32nd Modbus row, another language. Each up to the
// painted window. One frame at 60 Hz is 16.7 ms.

#include "bench/opened_dialogs.h"
#include "bench/side_by_side.h"
#include "settings/transfer_settings.h"
#include "settings/values.h"
#include "window/key_translator.h"

#include <QCheckBox>
#include <QComboBox>
#include <QTabWidget>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

const QString kOperators = QStringLiteral("Transfer_comboBox_GSM_Operator_1");
const QString kOwners = QStringLiteral("comboBox_RS485_Owner_1");
const QString kSensorTypes = QStringLiteral("comboBox_Type_Sens_1");

using DialogPtr = std::unique_ptr<VLK_Widget_Config>;

template <class Widget>
Widget* find(const DialogPtr& dialog, const QString& name)
{
    // The quick window has widgets of the same names.
    auto* const full = dialog->findChild<QWidget*>(QStringLiteral("page_Full"));
    auto* const found = full->template findChild<Widget*>(name);
    if (!found)
        qFatal("no %s", qPrintable(name));
    return found;
}

// With the tab of the named widget on top.
DialogPtr openedAt(const QString& name)
{
    auto dialog = std::make_unique<VLK_Widget_Config>();
    bench::openConfiguration(*dialog);
    auto* const tabs = find<QTabWidget>(dialog, QStringLiteral("tabWidget"));
    const auto* const widget = find<QWidget>(dialog, name);
    for (int tab = 0; tab < tabs->count(); ++tab) {
        if (tabs->widget(tab)->isAncestorOf(widget))
            tabs->setCurrentIndex(tab);
    }
    bench::settle();
    return dialog;
}

// Selecting an operator fills three settings, and the widgets that show them.
void editWithWindow(benchmark::State& state)
{
    const DialogPtr dialog = openedAt(kOperators);
    auto* const operators = find<QComboBox>(dialog, kOperators);
    vlk::Values alone(vlk::kTransferSettings);
    const int row = alone.rowAt(QStringLiteral("AP1/operator"));
    int item = 0;
    bench::sideBySide(
        state, "x without window",
        [&] {
            item = 1 - item;
            operators->setCurrentIndex(item);
        },
        [&] { benchmark::DoNotOptimize(alone.edit(row, QString::number(item))); });
}

// Walks through the items of a list: in a new dialog each has a form to make, later none. `slowest_ms` is the
// mean of the item that takes longest, which the label names.
void walkList(benchmark::State& state, const QString& name, bool first)
{
    DialogPtr dialog = openedAt(name);
    auto* list = find<QComboBox>(dialog, name);
    struct Item
    {
        double seconds = 0;
        int times = 0;
    };
    std::vector<Item> items(static_cast<std::size_t>(list->count()));
    int item = list->currentIndex();
    const auto chooseNext = [&] {
        item = (item + 1) % list->count();
        list->setCurrentIndex(item);
        bench::settle();
    };
    for (int i = 0; !first && i < list->count(); ++i)
        chooseNext();
    int made = 0;
    bench::sideBySide(
        state, "x empty dialog",
        [&] {
            if (first && ++made == list->count()) {
                dialog = openedAt(name);
                list = find<QComboBox>(dialog, name);
                item = list->currentIndex();
                made = 1;
            }
            const double seconds = bench::secondsOf(chooseNext);
            items[item].seconds += seconds;
            ++items[item].times;
            return seconds;
        },
        bench::openEmptyDialog);
    const auto mean = [](const Item& one) { return one.times > 0 ? one.seconds / one.times : 0; };
    const auto slowest = std::ranges::max_element(items, {}, mean);
    state.counters["slowest_ms"] = 1e3 * mean(*slowest);
    state.SetLabel(list->itemData(static_cast<int>(slowest - items.begin())).toString().toStdString());
}

void switchLastModbusRow(benchmark::State& state)
{
    const DialogPtr dialog = openedAt(kOwners);
    auto* const owners = find<QComboBox>(dialog, kOwners);
    owners->setCurrentIndex(owners->findData(QStringLiteral("MDBS")));
    const auto use = [&](int row) {
        return find<QCheckBox>(dialog, QStringLiteral("checkBox_Modbus_Use_%1").arg(row));
    };
    constexpr int kRows = 32;
    for (int row = 1; row < kRows; ++row)
        use(row)->setChecked(true);
    for (int event = 1; event <= 10; ++event)
        find<QCheckBox>(dialog, QStringLiteral("checkBox_Interface_Events_Use_%1").arg(event))
            ->setChecked(true);
    auto* const last = use(kRows);
    bench::settle();
    bench::sideBySide(
        state, "x empty dialog",
        [&] {
            last->toggle();
            bench::settle();
        },
        bench::openEmptyDialog);
}

void changeLanguage(benchmark::State& state)
{
    const DialogPtr dialog = openedAt(kOperators);
    workbench::KeyTranslator english;
    if (!english.load(QStringLiteral(VLK_TEXTS "/en.qm")))
        qFatal("no texts in " VLK_TEXTS);
    bool isEnglish = false;
    bench::sideBySide(
        state, "x empty dialog",
        [&] {
            isEnglish = !isEnglish;
            isEnglish ? QCoreApplication::installTranslator(&english)
                      : QCoreApplication::removeTranslator(&english);
            dialog->retranslate();
            bench::settle();
        },
        bench::openEmptyDialog);
}

BENCHMARK(editWithWindow)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(walkList, ownersFirst, kOwners, true)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(walkList, owners, kOwners, false)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(walkList, sensorTypesFirst, kSensorTypes, true)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(walkList, sensorTypes, kSensorTypes, false)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(switchLastModbusRow)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(changeLanguage)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
