// How the configuration looks, measured over all pages in both languages: nothing is cut, nothing scrolls
// sideways, and what only shows does not look like a field.

#include "support/data_table.h"
#include "support/distances.h"
#include "support/letters.h"
#include "support/scripted_host.h"
#include "typing/field_mark.h"
#include "window/appearance.h"
#include "window/house_style.h"
#include "window/languages.h"

#include <QtTest>
#include <QtWidgets>

#include <cmath>
#include <memory>

namespace {

double luminance(const QColor& color)
{
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [low, high] = std::minmax({luminance(one), luminance(other)});
    return (high + 0.05) / (low + 0.05);
}

// The words of a title, and the room that the style gives them.
bool isTitleWhole(QGroupBox* group)
{
    QStyleOptionGroupBox option;
    option.initFrom(group);
    option.text = group->title();
    option.textAlignment = Qt::AlignLeft;
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    if (group->isCheckable())
        option.subControls |= QStyle::SC_GroupBoxCheckBox;
    const QRect room =
        group->style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, group);
    QFont font = group->font();
    font.setWeight(QFont::DemiBold);
    return group->rect().contains(room) &&
           room.width() >= QFontMetrics(font).size(Qt::TextShowMnemonic, group->title()).width();
}

bool isWhole(QWidget* widget)
{
    if (auto* label = qobject_cast<QLabel*>(widget); label && label->wordWrap())
        return label->height() >= label->heightForWidth(label->width());
    if (auto* group = qobject_cast<QGroupBox*>(widget))
        return isTitleWhole(group);
    if (auto* push = qobject_cast<QPushButton*>(widget))
        return push->width() >= push->fontMetrics().size(Qt::TextShowMnemonic, push->text()).width();
    const auto* button = qobject_cast<QAbstractButton*>(widget);
    const bool hasWords = qobject_cast<QLabel*>(widget) || (button && !button->text().isEmpty());
    return !hasWords || widget->width() >= widget->minimumSizeHint().width();
}

// Wider than 28 characters, and than its longest item needs.
bool isTooWide(const QComboBox* list)
{
    const QFontMetrics letters = list->fontMetrics();
    int words = 28 * letters.averageCharWidth();
    for (int i = 0; i < list->count(); ++i)
        words = std::max(words, letters.horizontalAdvance(list->itemText(i)));
    QStyleOptionComboBox option;
    option.initFrom(list);
    const QSize size(words, letters.height());
    return list->width() >
           QApplication::style()->sizeFromContents(QStyle::CT_ComboBox, &option, size).width();
}

} // namespace

class ConfigLooksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(languages_.set(QStringLiteral("ru")));
        host_.start();
        host_.open({});
        window_ = ScriptedHost::window("VLK_Widget_Config");
        tabs_ = window_->findChild<QTabWidget*>("tabWidget");
    }

    void pages_data()
    {
        DataTable<QString, QSize>({"language", "size"})
            .row("Russian, small", "ru", {960, 500})
            .row("English, small", "en", {960, 500})
            .row("Russian, usual", "ru", {1024, 600})
            .row("English, usual", "en", {1024, 600});
    }
    void pages()
    {
        QFETCH(QString, language);
        QFETCH(QSize, size);
        QVERIFY(languages_.set(language));
        host_.send(vlk::Message::LanguageChanged);
        for (const bool full : {true, false}) {
            host_.open({}, full);
            setSize(size);
            for (int tab = 0; tab < (full ? tabs_->count() : 1); ++tab) {
                tabs_->setCurrentIndex(tab);
                settle();
                const QStringList found = faults();
                QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
            }
        }
    }

    // Lines of all uses, and sensors of all types.
    void choices_data()
    {
        // Some widths have just room for pairs side by side.
        DataTable<QString, QSize>({"language", "size"})
            .row("Russian, small", "ru", {960, 500})
            .row("English, small", "en", {960, 500})
            .row("Russian, pairs", "ru", {1350, 600})
            .row("English, pairs", "en", {1110, 600});
    }
    void choices()
    {
        QFETCH(QString, language);
        QFETCH(QSize, size);
        QVERIFY(languages_.set(language));
        host_.send(vlk::Message::LanguageChanged);
        host_.open({});
        setSize(size);
        for (const char* name : {"comboBox_NormState_In3", "comboBox_Type_Sens_1", "comboBox_ServerType",
                                 "comboBox_RS485_Owner_1"}) {
            auto* list = tabs_->findChild<QComboBox*>(name);
            for (int tab = 0; !list->isVisible(); ++tab)
                tabs_->setCurrentIndex(tab);
            for (int item = 0; item < list->count(); ++item) {
                // The table of registers has many columns: it has room with the letters of a desktop.
                const bool isModbus = list->itemData(item) == QLatin1String("MDBS");
                const QFont before = QApplication::font();
                if (isModbus)
                    QApplication::setFont(QFont(before.family(), 9));
                list->setCurrentIndex(item);
                settle();
                const QStringList found = faults();
                QApplication::setFont(before);
                QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
            }
        }
    }

    void pairsFoldAndComeBack()
    {
        host_.open({});
        const auto place = [this](const char* name) {
            auto* field = tabs_->findChild<QWidget*>(name);
            return field->mapTo(window_, QPoint());
        };
        tabs_->setCurrentIndex(3);
        for (const int width : {960, 1600, 960}) {
            setSize({width, 500});
            const QPoint first = place("Settings_Psw_lineEdit_CSD");
            const QPoint second = place("Settings_Psw_lineEdit_SMS");
            QCOMPARE(second.y() == first.y(), width == 1600);
            QCOMPARE(second.x() == first.x(), width == 960);
        }
    }

    // A fold must not undo the cause of itself: the rows would jump for ever.
    void pagesRest_data() { DataTable<QString>({"language"}).row("Russian", "ru").row("English", "en"); }
    void pagesRest()
    {
        QFETCH(QString, language);
        QVERIFY(languages_.set(language));
        host_.send(vlk::Message::LanguageChanged);
        for (const bool full : {true, false}) {
            host_.open({}, full);
            auto* use = window_->findChild<QComboBox*>("comboBox_NormState_In3");
            use->setCurrentIndex(use->count() - 1);
            for (int tab = 0; tab < (full ? tabs_->count() : 1); ++tab) {
                tabs_->setCurrentIndex(tab);
                for (int width = 900; width <= 1400; width += 20) {
                    setSize({width, 560});
                    const auto places = placesOfWidgets();
                    QCoreApplication::processEvents();
                    QVERIFY2(placesOfWidgets() == places,
                             qPrintable(QStringLiteral("%1 at %2").arg(tabs_->tabText(tab)).arg(width)));
                }
            }
        }
    }

    // From a field that takes its column to the caption of the next one.
    void gapOfPairs()
    {
        host_.open({});
        setSize({1600, 900});
        for (const char* pair :
             {"Transfer_lineEdit_GSM_Login_1 label_GSM_Psw_1", "GPRSSrv_lineEdit_IP_DNS_Main label_Port_Main",
              "comboBox_RS485_Boudrate label_RS485_Parity", "comboBox_RS485_Parity label_RS485_StopBit",
              "Settings_Psw_lineEdit_CSD label_Psw_SMS", "lineEdit_Name_In1 label_Title_NormState_In1",
              "lineEdit_Name_Sens_1 label_MacAddr_Sens_1"}) {
            const QStringList names = QString(pair).split(' ');
            auto* field = tabs_->findChild<QWidget*>(names[0]);
            for (int tab = 0; !field->isVisible(); ++tab)
                tabs_->setCurrentIndex(tab);
            settle();
            const auto* caption = tabs_->findChild<QWidget*>(names[1]);
            const int end = field->mapTo(window_, QPoint(field->width(), 0)).x();
            QCOMPARE(caption->mapTo(window_, QPoint()).x() - end, 16);
        }
    }

    // Handles of sliders stand out of them at the ends of the scale.
    void handlesAreWhole()
    {
        host_.open({});
        setSize({960, 500});
        auto* use = tabs_->findChild<QComboBox*>("comboBox_NormState_In3");
        use->setCurrentIndex(use->findData("NS+"));
        for (const char* name : {"Power", "Fuel", "AIN"}) {
            const auto onShow = [&](const QString& part) {
                for (int tab = 0; tab < tabs_->count(); ++tab) {
                    tabs_->setCurrentIndex(tab);
                    settle();
                    for (auto* found : tabs_->findChildren<QWidget*>(part.arg(name))) {
                        if (found->isVisible())
                            return found;
                    }
                }
                qFatal("nowhere");
            };
            auto* left = static_cast<QDoubleSpinBox*>(onShow("doubleSpinBox_%1_Left"));
            auto* right = static_cast<QDoubleSpinBox*>(onShow("doubleSpinBox_%1_Right"));
            left->setValue(left->minimum());
            right->setValue(right->maximum());
            const QWidget* slider = onShow("slider_%1");
            settle();
            QWidget* page = static_cast<QScrollArea*>(tabs_->currentWidget())->widget();
            const QImage image = page->grab().toImage();
            for (const int x : {-4, slider->width() + 3}) {
                const QPoint end = slider->mapTo(page, QPoint(x, 8));
                QVERIFY2(image.valid(end) && image.pixelColor(end).lightness() < 100, name);
            }
        }
    }

    // Where another setting, or that no tracker is there, closes a field. Some fields of a record are always
    // in.
    void closedFieldsSayWhy()
    {
        host_.open({});
        QStringList silent;
        for (int tab = 0; tab < tabs_->count(); ++tab) {
            tabs_->setCurrentIndex(tab);
            settle();
            for (QWidget* widget : tabs_->currentWidget()->findChildren<QWidget*>()) {
                const bool isField =
                    (widget->focusPolicy() & Qt::TabFocus) && !widget->objectName().startsWith("qt_");
                if (tab == 1 || !isField || !widget->isVisible() || widget->isEnabled())
                    continue;
                const QString nothing = QStringLiteral("nothing");
                QToolTip::showText({1, 1}, nothing);
                QHelpEvent ask(QEvent::ToolTip, {1, 1}, widget->mapToGlobal({1, 1}));
                QCoreApplication::sendEvent(widget, &ask);
                if (QToolTip::text() == nothing)
                    silent << widget->objectName();
            }
        }
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
        QCOMPARE(silent, QStringList());
    }

    void disabledTextFollowsTheColours()
    {
        host_.open({});
        const QPalette before = QApplication::palette();
        QApplication::setPalette({QColor(0x35, 0x37, 0x3a), QColor(0x2b, 0x2d, 0x30)});
        settle();
        QCOMPARE(window_->palette().color(QPalette::Window), QColor(0x2b, 0x2d, 0x30));
        const QStringList found = faults();
        QApplication::setPalette(before);
        QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
    }

    void tabsAreWhole()
    {
        host_.open({});
        setSize({960, 500});
        QTabBar* bar = tabs_->tabBar();
        for (const bool back : {false, true}) {
            for (int step = 0; step < bar->count(); ++step) {
                const int tab = back ? bar->count() - 1 - step : step;
                tabs_->setCurrentIndex(tab);
                settle();
                int end = bar->width();
                for (const QToolButton* button : bar->findChildren<QToolButton*>())
                    end = button->isVisible() ? std::min(end, button->x()) : end;
                for (const int whole : {tab, std::min(tab + 1, bar->count() - 1)})
                    QVERIFY(bar->tabRect(whole).left() >= 0 && bar->tabRect(whole).right() < end);
            }
        }
    }

    // A box that comes with a choice is looked at, too.
    void boxesHaveTheirWordsOnce()
    {
        host_.open({});
        auto* use = tabs_->findChild<QComboBox*>("comboBox_UseAs_O1");
        for (int tab = 0; tab < tabs_->count(); ++tab) {
            tabs_->setCurrentIndex(tab);
            settle();
            if (use->isVisible()) {
                use->setFocus();
                QTest::keyClick(use, Qt::Key_End);
                QVERIFY(tabs_->findChild<QCheckBox*>("checkBox_ZumG_O1")->isVisible());
                settle();
            }
            for (const QLabel* label : tabs_->currentWidget()->findChildren<QLabel*>()) {
                const auto* box = qobject_cast<QCheckBox*>(label->buddy());
                QVERIFY2(!box || !label->isVisible() || label->text() != box->text(),
                         qPrintable(label->objectName()));
            }
        }
    }

    void presentValuesAreNoFields()
    {
        for (const char* name : {"doubleSpinBox_TuningCur", "doubleSpinBox_AIN_Cur"}) {
            const auto* box = tabs_->findChild<QDoubleSpinBox*>(name);
            QVERIFY(box->isReadOnly() && !box->hasFrame() && !(box->focusPolicy() & Qt::TabFocus));
            QCOMPARE(box->text(), QString("–"));
            QCOMPARE(box->palette().color(QPalette::Disabled, QPalette::Text),
                     box->palette().color(QPalette::Active, QPalette::Text));
        }
        for (auto* line : window_->findChildren<QLineEdit*>(QRegularExpression("^lineEdit_CurLevel_SH")))
            QVERIFY(line->isReadOnly() && !line->hasFrame() && !(line->focusPolicy() & Qt::TabFocus));
    }

    // By keys, on light and on dark: its outline has three times the light of the window, or a third of it.
    void focusIsSeen()
    {
        for (const auto appearance : {workbench::Appearance::Light, workbench::Appearance::Dark}) {
            workbench::apply(appearance);
            QDialog window;
            QVBoxLayout layout(&window);
            QLineEdit elsewhere;
            QPushButton button(QStringLiteral("Save"));
            button.setAutoDefault(false);
            QCheckBox box(QStringLiteral("Passwords"));
            QToolButton tool;
            tool.setText(QStringLiteral("Presets"));
            QComboBox list;
            list.addItem(QStringLiteral("All"));
            QTextBrowser page;
            QSlider slider(Qt::Horizontal);
            QListWidget lines;
            lines.addItem(QStringLiteral("IN1"));
            lines.setCurrentRow(0);
            QListWidget empty;
            QTreeWidget none;
            QTableView table;
            QLineEdit wrong;
            QTabBar tabs;
            tabs.addTab(QStringLiteral("."));
            const QPalette& palette = QApplication::palette();
            QVERIFY(contrast(palette.highlight().color(), palette.base().color()) > 3);
            QVERIFY(contrast(palette.highlight().color(), palette.highlightedText().color()) > 3);
            const QWidgetList widgets{&button, &box,   &tool, &list,  &page,  &slider,
                                      &lines,  &empty, &none, &table, &wrong, &tabs};
            for (QWidget* widget : QWidgetList{&elsewhere} + widgets)
                layout.addWidget(widget);
            window.show();
            QApplication::setActiveWindow(&window);
            vlk::markField(&wrong, vlk::MarkReason::Typing, vlk::Mark::Invalid, QStringLiteral("no"));
            elsewhere.setFocus();
            for (QWidget* widget : widgets) {
                const QImage without = widget->grab().toImage();
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                QVERIFY(widget->hasFocus());
                const QImage with = widget->grab().toImage();
                int outline = 0;
                for (int x = 0; x < with.width(); ++x) {
                    for (int y = 0; y < with.height(); ++y) {
                        const bool isSeen =
                            with.pixel(x, y) != without.pixel(x, y) &&
                            contrast(with.pixelColor(x, y), window.palette().window().color()) > 3;
                        outline += isSeen ? 1 : 0;
                    }
                }
                QVERIFY2(outline > 100, qPrintable(QString::fromLatin1(widget->metaObject()->className()) +
                                                   QLatin1Char(' ') + QString::number(outline)));
            }
        }
        workbench::apply(workbench::Appearance::System);
    }

private:
    static void settle()
    {
        for (int round = 0; round < 10; ++round)
            QCoreApplication::processEvents();
    }

    void setSize(const QSize& size)
    {
        settle();
        window_->setFixedSize(size);
        settle();
    }

    QList<QRect> placesOfWidgets() const
    {
        QList<QRect> places;
        for (const QWidget* widget : window_->findChildren<QWidget*>()) {
            if (widget->isVisible())
                places << QRect(widget->mapTo(window_, QPoint()), widget->size());
        }
        return places;
    }

    QStringList faults() const
    {
        QStringList found = oddDistances(window_);
        if (const QString letters = sharedLetters(window_); !letters.isEmpty())
            found << letters;
        for (QWidget* widget : window_->findChildren<QWidget*>()) {
            if (!widget->isVisible())
                continue;
            const auto* bar = qobject_cast<QScrollBar*>(widget);
            if (bar && bar->orientation() == Qt::Horizontal && bar->maximum() > 0)
                found << QStringLiteral("scrolls by %1").arg(bar->maximum());
            const auto scrolls = [](const QWidget* area) {
                const auto* scrolling = qobject_cast<const QScrollArea*>(area);
                return scrolling && scrolling->verticalScrollBar()->maximum() > 0;
            };
            const QWidget* page = tabs_->currentWidget();
            // The fields of the record are long lists.
            const bool isList = tabs_->currentIndex() == 1;
            if (!isList && widget != page && page->isAncestorOf(widget) && scrolls(widget))
                found << QStringLiteral("scrolls within what scrolls");
            if (!isWhole(widget))
                found << widget->objectName() + QStringLiteral(" is cut");
            if (const auto* list = qobject_cast<QComboBox*>(widget); list && isTooWide(list))
                found << widget->objectName() + QStringLiteral(" is wide");
            const auto* label = qobject_cast<QLabel*>(widget);
            if (label && qobject_cast<QCheckBox*>(label->buddy()))
                found << widget->objectName() + QStringLiteral(" stands beside its box");
            const QPalette& palette = widget->palette();
            if (contrast(palette.color(QPalette::Disabled, QPalette::WindowText),
                         palette.color(QPalette::Disabled, QPalette::Window)) < 3.5)
                found << widget->objectName() + QStringLiteral(" is pale");
        }
        return found;
    }

    ScriptedHost host_;
    workbench::Languages languages_;
    QWidget* window_ = nullptr;
    QTabWidget* tabs_ = nullptr;
};

// With the style that the windows have in the workbench.
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    workbench::HouseStyle::setUp();
    const auto test = std::make_unique<ConfigLooksTest>();
    return QTest::qExec(test.get(), argc, argv);
}

#include "tst_config_looks.moc"
