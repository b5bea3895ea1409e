// The Data set page: what each box stands for, the versions of the protocol, the size of the record and what
// it locks.

#include "dataset/data_set_tabs.h"
#include "dataset/form_config_zeta3.h"
#include "dialog/config_pages.h"
#include "dialog/widget_config_full.h"
#include "settings_page.h"
#include "support/data_table.h"

#include <QCheckBox>
#include <QFrame>
#include <QMenu>
#include <QSignalSpy>
#include <QTabWidget>
#include <QtTest>

namespace {

// A mask with these positions on, at its three fixed ones and nowhere else.
QString maskOf(const QVector<int>& positions)
{
    QString mask = QString("111") + QString(252, '0');
    for (const int position : positions)
        mask[position] = '1';
    return mask;
}

// What makes a record larger than this tracker's boxes can.
class LargeTab : public VLK_Form_Config_Set_Zeta3_Tab
{
public:
    using VLK_Form_Config_Set_Zeta3_Tab::VLK_Form_Config_Set_Zeta3_Tab;

    int bytesBesideMask() const override { return bytes_; }
    void setBytes(int bytes)
    {
        bytes_ = bytes;
        Q_EMIT bytesBesideMaskChanged();
    }

private:
    int bytes_ = 0;
};

} // namespace

class DataSetTest : public QObject, private SettingsPage<VLK_Form_Config_Zeta3>
{
    Q_OBJECT

public:
    DataSetTest() : SettingsPage("PROTOCOL") {}

private Q_SLOTS:
    void init() { open(); }

    void boxes_data()
    {
        DataTable<QString, QString, int, QVector<int>, bool> table(
            {"tab", "box", "bytes", "positions", "shown"});
        const QString golden =
            QString::fromUtf8(readFile(VLK_SOURCE "/tests/settings/golden/data_set_boxes.tsv"));
        for (const QString& line : golden.split('\n', Qt::SkipEmptyParts).mid(1)) {
            const QStringList cells = line.split('\t');
            if (line.startsWith('#') || cells[1] == "comboBox_Tires")
                continue;
            QVector<int> positions;
            for (const QString& position : cells[3].split(' '))
                positions << position.toInt();
            table.row(qPrintable(cells[1]), cells[0], cells[1], cells[2].toInt(), positions,
                      cells[4] == "yes");
        }
    }
    void boxes()
    {
        QFETCH(QString, box);
        QFETCH(int, bytes);
        QFETCH(QVector<int>, positions);
        QFETCH(QString, tab);
        auto* widget = get<QCheckBox>(box);
        QTEST(!widget->isHidden(), "shown");
        QVERIFY(widget->text().isEmpty() == (box == "checkBox_Power"));
        QVERIFY(!widget->accessibleName().isEmpty());
        QWidget* owner = widget;
        for (; owner && !owner->inherits("VLK_Form_Config_Set_Zeta3_Tab");)
            owner = owner->parentWidget();
        QCOMPARE(QString(owner->metaObject()->className()), "VLK_Form_Config_Set_Zeta3_Tab_" + tab);
        const QString slot = "slot_stateChanged" +
                             QString(box).remove(QRegularExpression("^checkBox(_State(In|U)(?=_Imp|_Ain))?"));
        QCOMPARE(owner->metaObject()->indexOfSlot(qPrintable(slot + "(int)")) >= 0, tab == "Main");

        load({{"ZETA/mask", QString(255, '0')}});
        QCOMPARE(size(), 44);
        if (positions[0] < 3) {
            QVERIFY(widget->isChecked() && !isOn(box));
            return;
        }
        widget->setChecked(true);
        QCOMPARE(size(), 44 + bytes);
        QCOMPARE(saved("ZETA/mask"), maskOf(positions));
        widget->setChecked(false);
        QCOMPARE(size(), 44);
        QCOMPARE(saved("ZETA/mask"), maskOf({}));
    }

    void masks_data()
    {
        DataTable<QString, QString>({"mask", "saved"})
            .row("none", "", maskOf({}))
            .row("short", "1111111", maskOf({3, 4, 5, 6}))
            .row("temperature alone", maskOf({79}), maskOf({39, 79}))
            .row("level alone", maskOf({39}), maskOf({39, 79}))
            .row("latitude", maskOf({9}), maskOf({9, 10}))
            .row("longitude", maskOf({10}), maskOf({}))
            .row("what no box chooses", maskOf({52, 97, 170, 206, 254}), maskOf({}))
            .row("tyres", maskOf({94, 95}), maskOf({94, 95}))
            .row("a number of tyres that there is not", maskOf({93}), maskOf({95}))
            .row("other characters", "xyz9" + QString(260, '-'), maskOf({3}));
    }
    // After one with eight tyres.
    void masks()
    {
        QFETCH(QString, mask);
        load({{"ZETA/mask", maskOf({95})}});
        QCOMPARE(get<QComboBox>("comboBox_Tires")->currentIndex(), 3);
        load({{"ZETA/mask", mask}});
        QTEST(saved("ZETA/mask"), "saved");
    }

    void tyresCountTheDifference()
    {
        load({{"ZETA/mask", maskOf({})}});
        get<QComboBox>("comboBox_Tires")->setCurrentIndex(2);
        QCOMPARE(size(), 44 + 18);
        get<QComboBox>("comboBox_Tires")->setCurrentIndex(5);
        QCOMPARE(size(), 44 + 36);
        QCOMPARE(saved("ZETA/mask"), maskOf({94, 95}));
    }

    void versions_data()
    {
        DataTable<QString, bool, bool, QString>({"format", "second", "third", "heading"})
            .row("1.0", "10", false, false, "cfgt2f_049")
            .row("2.0", "20", true, false, "cfgt2f_050")
            .row("3.0", "30", true, true, "cfgt2f_050")
            .row("unknown", "7", true, true, "cfgt2f_050");
    }
    // A later version's box that is checked stays so, counts and is saved.
    void versions()
    {
        QFETCH(QString, format);
        QFETCH(bool, second);
        QFETCH(bool, third);
        load({{"ZETA/format", format}, {"ZETA/mask", maskOf({83, 122})}});
        QCOMPARE(notEnabled("checkBox_State checkBox_RS485_Level_1 checkBox_Coord", true), QStringList());
        QCOMPARE(
            notEnabled("checkBox_LBS checkBox_RS485_Level_7 comboBox_Tires checkBox_AccelModule", second),
            QStringList());
        QCOMPARE(notEnabled("checkBox_State_2 checkBox_RS485_Frequency_1 checkBox_Motochas_2", third),
                 QStringList());
        QVERIFY(!isOn("checkBox_Motochas_3"));
        QTEST(child("label_RS485_Level")->text(), "heading");
        QCOMPARE(size(), 44 + 3 + 1);
        QCOMPARE(saved("ZETA/mask"), maskOf({83, 122}));
    }

    void defaults()
    {
        QCOMPARE(size(), 89);
        QVERIFY(child("label_MaxSize_Alarm")->isHidden());
        get<QCheckBox>("checkBox_LBS")->setChecked(true);
        QCOMPARE(size(), 126);
        page().setDefaults();
        QCOMPARE(size(), 89);
        QCOMPARE(saved("ZETA/format"), QString("10"));
    }

    void tabsAndMenu()
    {
        auto* tabs = get<QTabWidget>("tabWidget_Zeta3");
        const auto* menu = tabs->findChild<QMenu*>();
        const QStringList titles = {"cfgt2f_001", "cfgt2f_026", "RS-485 / BT", "cfgt2f_082", "cfgt2f_124"};
        page().retranslate();
        QCOMPARE(tabs->count(), titles.size());
        for (int i = titles.size() - 1; i >= 0; --i) {
            QCOMPARE(tabs->tabText(i), titles[i]);
            QCOMPARE(menu->actions().at(i)->text(), titles[i]);
            menu->actions().at(i)->trigger();
            QCOMPARE(tabs->currentIndex(), i);
        }
    }

    // 513 bytes lock the window, 512 free it. What a load does on the way is no alarm.
    void excessLocksTheWindow()
    {
        VLK_Widget_Config_Full full;
        auto* tabs = full.findChild<QTabWidget*>("tabWidget");
        const auto* frame = full.findChild<QFrame*>("frame_Excess");
        full.pages().forEach([&](VLK_Form_Config_Zeta3& page) {
            QSignalSpy spy(&page, &VLK_Form_Config_Set_Zeta3::signal_Excess_Size);
            const auto* alarm = page.findChild<QLabel*>("label_MaxSize_Alarm");
            auto* large = new LargeTab(5);
            page.findChild<vlk::DataSetTabs*>()->add(vlk::DataSetTabs::kPlaces, large);
            large->setBytes(512 - 89);
            QVERIFY(spy.isEmpty() && frame->isEnabled() && alarm->isHidden());
            large->setBytes(513 - 89);
            QCOMPARE(page.findChild<QLabel*>("label_Size_Value")->text(), QString("513"));
            QVERIFY(!frame->isEnabled() && !alarm->isHidden());
            for (int tab = 0; tab < tabs->count(); ++tab)
                QCOMPARE(tabs->isTabEnabled(tab), tab == page.tabIndex());
            large->setBytes(514 - 89);
            large->setBytes(512 - 89);
            QVERIFY(frame->isEnabled() && tabs->isTabEnabled(0) && alarm->isHidden());
            QCOMPARE(spy, (QList<QList<QVariant>>{{true}, {false}}));

            spy.clear();
            // Four bytes less in the end, but the temperature comes before the speed goes.
            QString mask = page.settings().value("ZETA/mask");
            mask[44] = '1';
            mask[12] = '0';
            vlk::XmlDocument in(
                QString("<DEVICE><PROTOCOL><ZETA mask=\"%1\"/></PROTOCOL></DEVICE>").arg(mask).toLatin1(),
                "DEVICE");
            page.loadFromXml(in.root());
            QVERIFY(spy.isEmpty());
            QCOMPARE(page.findChild<QLabel*>("label_Size_Value")->text(), QString("509"));
        });
    }

private:
    int size() const { return child("label_Size_Value")->text().toInt(); }
};

QTEST_MAIN(DataSetTest)
#include "tst_data_set.moc"
