// What a control of a page enables, disables and pulls along, against the golden table of
// settings/golden/enabling.tsv (its README tells the form). What a box remembers, and the list of roaming
// operators, are in the tests of their pages.

#include "dialog/config_pages.h"
#include "review/value_text.h"
#include "settings/lines_out_settings.h"
#include "support/data_table.h"
#include "support/device.h"
#include "support/disagreements.h"
#include "support/files.h"
#include "support/window_parts.h"

#include <QtTest>
#include <QtWidgets>

#include <memory>

namespace {

// Each state that the words of the table stand for: "any checked" of two boxes is one and the other.
QVector<QStringList> statesOf(const QStringList& controls, const QString& state)
{
    static const QMap<QString, QString> opposites{
        {"checked", "unchecked"}, {"0", "other than 0"}, {"other than 0", "0"}};
    const QString word = state.section(' ', 0, 0);
    const QString one = state.section(' ', 1);
    QVector<QStringList> states;
    const auto add = [&](const QString& odd, const QString& first, const QString& others) {
        states.append(QStringList());
        for (const QString& control : controls)
            states.last() << control + ' ' + (control == odd ? first : others);
    };
    if (word == "any") {
        for (const QString& odd : controls)
            add(odd, one, opposites[one]);
    } else {
        const QString all = word == "none" ? opposites[one] : word == "all" ? one : state;
        add({}, {}, all);
    }
    return states;
}

} // namespace

class EnablingTest : public QObject, private WindowParts
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { device().initialize(nullptr); }

    void controls_data()
    {
        DataTable<QString, QStringList, QStringList, QStringList, QStringList> table(
            {"page", "states", "enabled", "disabled", "pulled"});
        const QString golden = QString::fromUtf8(readFile(VLK_SOURCE "/tests/settings/golden/enabling.tsv"));
        for (const QString& line : golden.split('\n', Qt::SkipEmptyParts).mid(1)) {
            if (line.startsWith('#') || line.contains("(roaming list)"))
                continue;
            for (int number = 1; number <= (line.contains("{n}") ? 4 : 1); ++number) {
                const QStringList cells = QString(line).replace("{n}", QString::number(number)).split('\t');
                const auto words = [&](int cell) { return cells[cell].split(' ', Qt::SkipEmptyParts); };
                const QStringList conditions = cells[2].split(" & ");
                const QStringList controls = cells[1].startsWith('(') ? QStringList("(tracker)") : words(1);
                for (const QStringList& states : statesOf(controls, conditions[0]))
                    table.row(qPrintable(states.join(", ") + ' ' + conditions.mid(1).join(' ')), cells[0],
                              conditions.mid(1) + states, words(3), words(4), words(5));
            }
        }
    }
    // From the other state, so that there is something to change.
    void controls()
    {
        QFETCH(QString, page);
        QFETCH(QStringList, states);
        QFETCH(QStringList, enabled);
        QFETCH(QStringList, disabled);
        QFETCH(QStringList, pulled);
        open(page);
        // Groups around the controls are open then.
        static const QMap<QString, QStringList> begin{{"system", {"PWRSENS/line=3"}},
                                                      {"lines_in", {"IN3/normState=NB+"}},
                                                      {"lines_out", {"LINE1/signalForm=2"}},
                                                      {"transfer", {"SRV2/use=1", "SRV3/use=1"}}};
        for (const QString& edit : begin[page])
            settings_->edit(edit.section('=', 0, 0), edit.section('=', 1));
        const QString control = states.last().section(' ', 0, 0);
        const QString state = states.last().section(' ', 1);
        static const QRegularExpression line("_In(\\d)$");
        const QRegularExpressionMatch found = line.match(control);
        form_ = page == "lines_in"
                    ? child<QWidget>("lineSettings_In" + (found.hasMatch() ? found.captured(1) : "3"))
                    : window;
        if (state.startsWith("value="))
            take(control + " value=0");
        else if (state.endsWith("checked"))
            take(control + (state == "checked" ? " unchecked" : " checked"));
        else if (page == "lines_in" && state.startsWith("code="))
            take(control + " code=NU");
        for (const QString& step : states)
            take(step);
        if (page == "lines_in" && state.startsWith("code=") &&
            get<QComboBox>(control)->findData(state.mid(5)) < 0) {
            // The list does not offer the use.
            QCOMPARE(settings_->value("IN" + found.captured(1) + "/normState"), QString("N/A"));
            return;
        }
        for (const QString& name : enabled)
            QVERIFY2(get(name)->isEnabledTo(window), qPrintable(name));
        for (const QString& name : disabled)
            QVERIFY2(!get(name)->isEnabledTo(window) && (isBeside(name, control) || tellsWhy(name)),
                     qPrintable(name));
        for (const QString& pull : pulled)
            comparePull(pull);
        QCOMPARE(disagreements(settings_->binder()), QStringList());
    }

private:
    template <class Page>
    void openPage()
    {
        auto page = std::make_unique<Page>();
        settings_ = &page->settings();
        connect_ = [page = page.get()](bool on) {
            if constexpr (vlk::KnowsTheTracker<Page>)
                on ? page->deviceConnected() : page->deviceDisconnected();
        };
        window = page.get();
        page_ = std::move(page);
        connect_(true);
    }
    void open(const QString& page)
    {
        const QMap<QString, void (EnablingTest::*)()> pages{
            {"transfer", &EnablingTest::openPage<VLK_Form_Config_Transfer>},
            {"track", &EnablingTest::openPage<VLK_Form_Config_Track>},
            {"system", &EnablingTest::openPage<VLK_Form_Config_System>},
            {"lines_in", &EnablingTest::openPage<VLK_Form_Config_Lines_In>},
            {"lines_out", &EnablingTest::openPage<VLK_Form_Config_Lines_Out>},
            {"temperature", &EnablingTest::openPage<VLK_Form_Config_Sensors_Temp>},
            {"accel", &EnablingTest::openPage<VLK_Form_Config_Accel>}};
        QVERIFY2(pages.contains(page), qPrintable(page));
        (this->*pages[page])();
    }

    // A box that closes what stands behind it in its row says enough by its own mark.
    static bool isBeside(const QString& name, const QString& control)
    {
        const QString tail = control.section('_', 1);
        return control.startsWith("checkBox_") && (tail.startsWith("Auto") || name.contains('_' + tail));
    }
    // With the mouse over it.
    bool tellsWhy(const QString& name)
    {
        QWidget* widget = get(name);
        QHelpEvent event(QEvent::ToolTip, {}, {});
        QToolTip::hideText();
        QApplication::sendEvent(widget, &event);
        return QToolTip::text().startsWith("cfgt6_45");
    }

    // A widget of the line's own form, or of the page.
    template <class T = QWidget>
    T* get(const QString& name) const
    {
        T* found = form_ ? form_->findChild<T*>(name) : nullptr;
        return found ? found : child<T>(name);
    }

    // "box checked", "box value=7", "list index=2", "edit text empty".
    void take(const QString& step)
    {
        const QString name = step.section(' ', 0, 0);
        const QString state = step.section(' ', 1);
        const QString value = state.section('=', 1);
        if (name == "(tracker)")
            connect_(state == "connected");
        else if (state.startsWith("code="))
            choose(name, value);
        else if (state.startsWith("index="))
            get<QComboBox>(name)->setCurrentIndex(value.toInt());
        else if (state.startsWith("text"))
            get<QLineEdit>(name)->setText(state == "text empty" ? "" : "a.example");
        else if (state.endsWith("checked"))
            get(name)->setProperty("checked", state == "checked");
        else
            get(name)->setProperty(
                "value", state == "value other than 0" || state == "other than 0" ? 1 : value.toDouble());
    }

    // Chooses what the list does not offer, too.
    void choose(const QString& list, const QString& code)
    {
        auto* outputs = qobject_cast<VLK_Form_Config_Lines_Out*>(window);
        if (!outputs)
            settings_->edit("IN" + list.right(1) + "/normState", code);
        for (const vlk::Code& use : vlk::kOutputUses) {
            if (outputs && code == use.code)
                outputs->slot_currentIndexChanged_UseAs_O1(vlk::codeText(use));
        }
    }

    // "list.count=3", of each widget of the name, in which a star stands for anything.
    void comparePull(const QString& pull)
    {
        const QString what = pull.section('=', 0, 0);
        const QString name = what.section('.', 0, 0);
        const QString value = pull.section('=', 1).remove('"');
        QWidget* above = what.contains('*') ? window : get(name)->parentWidget();
        const auto widgets = above->findChildren<QWidget*>(
            QRegularExpression(QRegularExpression::wildcardToRegularExpression(name)));
        QVERIFY(!widgets.isEmpty());
        for (const QWidget* widget : widgets) {
            const QString shown = shownBy(*widget, what.section('.', 1), value);
            if (value.startsWith('{')) // a word of the product's own, always the same
                QCOMPARE(shown.isEmpty() ? "nothing" : shown, words_[value] = words_.value(value, shown));
            else if (value != "remembered")
                QCOMPARE(what + '=' + shown, what + '=' + value);
        }
    }

    // What a widget shows, in the table's words: the value, ".minimum" and the like, or whether it is there.
    static QString shownBy(const QWidget& widget, const QString& property, const QString& expected)
    {
        if (expected == "shown" || expected == "hidden")
            return widget.isHidden() ? "hidden" : "shown";
        if (const auto* pages = qobject_cast<const QStackedWidget*>(&widget))
            return pages->currentWidget()->objectName();
        if (const auto* edit = qobject_cast<const QLineEdit*>(&widget))
            return edit->text();
        if (expected.endsWith("checked"))
            return widget.property("checked").toBool() ? "checked" : "unchecked";
        if (const auto* list = qobject_cast<const QComboBox*>(&widget); list && property.isEmpty())
            return QString::number(list->currentIndex());
        const QByteArray asked = property.isEmpty() ? "value" : property.toLatin1();
        return QString::number(widget.property(asked.constData()).toDouble(), 'f',
                               expected.section('.', 1).size());
    }

    std::unique_ptr<QWidget> page_;
    vlk::PageSettings* settings_ = nullptr;
    std::function<void(bool)> connect_;
    QWidget* form_ = nullptr;
    QMap<QString, QString> words_;
};

QTEST_MAIN(EnablingTest)
#include "tst_enabling.moc"
