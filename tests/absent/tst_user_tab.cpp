// The User tab on a data-set page that has one: slots, size of the record, file, dialogs, and the way of an
// offered value from a form on the serial line to a slot.

#include "absent/forms/form_config_set_zeta3_tab_user.h"
#include "absent/params/user_params.h"
#include "dataset/data_set_tabs.h"
#include "dataset/form_config_set_zeta3.h"
#include "dialog/widget_config_full.h"
#include "support/data_table.h"
#include "support/device.h"
#include "support/setting_samples.h"
#include "support/window_parts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QTreeView>
#include <QtTest>

#include <memory>

using Tab = VLK_Form_Config_Set_Zeta3_Tab_User;
using Steps = QStringList;

namespace {

class PageWithSlots : public VLK_Form_Config_Set_Zeta3
{
public:
    PageWithSlots()
    {
        tabs().add(vlk::DataSetTabs::kPlaces, new Tab(0));
        finish();
    }
};

// A full window whose forms know the whole vocabulary.
class Vocabulary : public VLK_Wnd_Config_Full
{
public:
    QString userParamCode(const QString& text) override { return params_.displayToKey(text); }
    QString userParamText(const QString& code) override { return params_.keyToDisplay(code); }

private:
    VLK_UserParams params_;
};

} // namespace

class UserTabTest : public QObject, private WindowParts
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        device().initialize(nullptr);
        page_ = std::make_unique<PageWithSlots>();
        window = page_.get();
        vlkConfigFull = &vocabulary_;
    }
    void cleanup() { vlkConfigFull = nullptr; }

    // Steps: "+1 A" offers a value of one byte, "-1 A" withdraws it, "1_2=A" chooses it in the second slot.
    // Seen: the choices of the first two slots of one byte, the list of the third, and the bytes added.
    void slots_data()
    {
        DataTable<Steps, QString>({"steps", "seen"})
            .row("nothing", {}, "- - [] +0")
            .row("offered", {"+1 A"}, "- - [T, A] +0")
            .row("offered twice", {"+1 A", "+1 A"}, "- - [T, A] +0")
            .row("size of no slot", {"+3 A", "+0 A", "-3 A"}, "- - [] +0")
            .row("chosen", {"+1 A", "+1 B", "1_1=A"}, "T, A - [T, B] +1")
            .row("two", {"+1 A", "+1 B", "1_1=A", "1_2=B"}, "T, A T, B [] +2")
            .row("changed", {"+1 A", "+1 B", "1_1=A", "1_1=B"}, "T, B - [T, A] +1")
            .row("given back", {"+1 A", "+1 B", "1_1=A", "1_1="}, "- - [T, B|T, A] +0")
            .row("offered while in use", {"+1 A", "1_1=A", "+1 A"}, "T, A - [] +1")
            .row("withdrawn", {"+1 A", "+1 B", "-1 A"}, "- - [T, B] +0")
            .row("withdrawn while in use", {"+1 A", "+1 B", "1_1=A", "-1 A"}, "- - [T, B] +0")
            .row("withdrawn elsewhere", {"+1 A", "1_1=A", "-2 A"}, "T, A - [] +1")
            .row("other widths", {"+2 A", "+4 A", "2_15=A", "4_1=A", "8_3=cfgt5_021"}, "- - [] +14")
            .row("defaults", {"+1 A", "+8 A", "1_1=A", "8_1=A", "defaults"}, "- - [T, A] +0");
    }
    void slots()
    {
        QFETCH(Steps, steps);
        const int before = size();
        for (const QString& step : steps)
            run(step);
        const auto choice = [this](int slot) {
            return slotBox(1, slot)->currentText().replace("cfgt5_001", "-");
        };
        const QString seen = QStringLiteral("%1 %2 [%3] +%4")
                                 .arg(choice(1), choice(2), listOf(1, 3).join('|'))
                                 .arg(size() - before);
        QTEST(seen, "seen");
        QCOMPARE(slotBox(1, 16)->isEnabled(),
                 seen.contains("T, ")); // as soon as there is something to choose
    }

    void thirdPart()
    {
        page_->userParamAdded("MB", "MB3,  7,  1f", "2 wrd_017, wrd_020", 2);
        QCOMPARE(listOf(2, 1), QStringList("MB, MB3,  7,  1f, 2 wrd_017, wrd_020"));
    }

    void file_data()
    {
        DataTable<QString, QString, QString>({"key", "offered", "saved"})
            .row("empty", "", "", "")
            .row("sensor", "p3 is3 1", "IS", "is3")
            .row("tilt", "p1 as5 2", "AS", "as5")
            .row("fixed", "p2 ac214 8", "", "ac214")
            .row("nobody offers it", "p1 sl1 1", "", "");
    }
    // What is on offer comes back from the file, everything else is lost.
    void file()
    {
        QFETCH(QString, key);
        QFETCH(QString, offered);
        const QString place = key.section(' ', 0, 0);
        const QString text = key.section(' ', 1, 1);
        const int bytes = key.section(' ', 2, 2).toInt();
        if (!offered.isEmpty()) {
            const QString name = vocabulary_.userParamText(text).section(", ", 1);
            page_->userParamAdded(offered, name, {}, bytes);
        }
        const int before = size();
        const QString path = QStringLiteral("PROTOCOL/USRPRM%1/%2").arg(qMax(bytes, 1)).arg(place);
        vlk::XmlDocument in(documentWith({{path, text}}), "DEVICE");
        page_->loadFromXml(in.root());
        page_->loadUserParams(in.root());
        vlk::XmlDocument out(QString(), "DEVICE");
        page_->saveToXml(out.root());
        page_->saveUserParams(out.root());

        const CXmlSectionPtr protocol = out.root()->child("PROTOCOL");
        int slots = 0;
        QString stored;
        for (const auto& [element, count] :
             {std::pair("USRPRM1", 16), {"USRPRM2", 15}, {"USRPRM4", 15}, {"USRPRM8", 3}}) {
            const CXmlSectionPtr section = protocol->child(element);
            for (int i = 1; section->find(QStringLiteral("p%1").arg(i)); ++i)
                ++slots;
            for (int i = 1; i <= count; ++i)
                stored += section->getString(QStringLiteral("p%1").arg(i));
        }
        QCOMPARE(slots, 49);
        QTEST(stored, "saved");
        QCOMPARE(size() - before, stored.isEmpty() ? 0 : bytes);
    }

    void language()
    {
        page_->userParamAdded("IS", "A", {}, 1);
        run("8_1=cfgt5_020");
        page_->retranslate();
        QCOMPARE(listOf(1, 1), QStringList("IS, A"));
        QCOMPARE(listOf(8, 2), QStringList({"cfgt5_021", "cfgt5_022"}));
        QCOMPARE(slotBox(8, 1)->currentText(), QString("cfgt5_020"));
    }

    // What is checked in the list is on offer, what is unchecked is not, and the filter finds names and bits.
    void dialogs_data()
    {
        DataTable<QString, QString, QString, int, QString>({"button", "filter", "check", "rows", "offered"})
            .row("CAN parameter", "CAN", "cfgt5_055", "cfgt5_055", 1,
                 "C1, cfgt5_055, 2 wrd_017, wrd_020|MB, MB1, x")
            .row("found by its bit", "CAN", "cfgt5_073", "cfgt5_072", 1,
                 "C1, cfgt5_072, 2 wrd_017, wrd_019|MB, MB1, x")
            .row("without a size", "CAN", "cfgt5_342", "cfgt5_342", 1, "MB, MB1, x")
            .row("no match", "CAN", "nothing", "", 0, "MB, MB1, x")
            .row("Modbus row off", "MODBUS", "", "MB1", 1, "");
    }
    void dialogs()
    {
        QFETCH(QString, button);
        QFETCH(QString, filter);
        QFETCH(QString, check);
        QFETCH(int, rows);
        page_->userParamAdded("MB", "MB1", "x", 2);
        QTimer::singleShot(0, this, [&] {
            QWidget* dialog = QApplication::activeModalWidget();
            auto* line = dialog->findChild<QLineEdit*>("lineEdit_Filter");
            line->setText(filter);
            QTest::keyClick(line, Qt::Key_Return);
            QVERIFY(dialog->isVisible());
            QAbstractItemModel* model = dialog->findChild<QTreeView*>("treeView_Params")->model();
            QCOMPARE(model->rowCount(), rows);
            const auto found = check.isEmpty() ? QModelIndexList()
                                               : model->match(model->index(0, 0), Qt::DisplayRole, check, 1,
                                                              Qt::MatchExactly | Qt::MatchRecursive);
            for (const QModelIndex& index : found) {
                const bool checked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
                if (index.flags().testFlag(Qt::ItemIsUserCheckable))
                    model->setData(index, checked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
            }
            dialog->findChild<QAbstractButton*>("pushButton_Apply")->click();
        });
        press(qPrintable("pushButton_Set_" + button));
        QStringList list = listOf(2, 1);
        list.sort();
        QTEST(list.join('|'), "offered");
        // A row that was switched off in the list can be switched on there again.
        if (button == "MODBUS") {
            QTimer::singleShot(0, this, [] {
                QWidget* dialog = QApplication::activeModalWidget();
                QAbstractItemModel* model = dialog->findChild<QTreeView*>("treeView_Params")->model();
                model->setData(model->index(0, 0), Qt::Checked, Qt::CheckStateRole);
                dialog->findChild<QAbstractButton*>("pushButton_Apply")->click();
            });
            press("pushButton_Set_MODBUS");
            QCOMPARE(listOf(2, 1), QStringList("MB, MB1, x"));
        }
    }

    // Through the real windows: the owner's form, the RS page, the full window, the data-set page, the tab.
    void fromTheSerialLine()
    {
        page_.reset();
        VLK_Widget_Config_Full full;
        window = &full;
        child<vlk::DataSetTabs>("tabWidget_Zeta3")->add(vlk::DataSetTabs::kPlaces, new Tab(5));
        auto* owner = child<QComboBox>("comboBox_RS485_Owner_1");
        owner->setCurrentText("cfgt6_017");
        child<QCheckBox>("checkBox_Modbus_Use_3")->setChecked(true);
        const QString text = QStringLiteral("MB3,  1,  0, 1 wrd_016, wrd_019");
        QCOMPARE(listOf(1, 1), QStringList("MB, " + text));
        QCOMPARE(full.userParamCode("MB, " + text), QString("MB3"));
        QCOMPARE(full.userParamText("MB3"), text);

        slotBox(1, 4)->setCurrentIndex(1);
        vlk::XmlDocument out(QString(), "DEVICE");
        full.saveToXml(out.root());
        QCOMPARE(out.root()->child("PROTOCOL")->child("USRPRM1")->getString("p4"), QString("MB3"));

        owner->setCurrentIndex(0);
        QCOMPARE(listOf(1, 1), QStringList());
        owner->setCurrentText("cfgt6_017");
        QCOMPARE(listOf(1, 1), QStringList("MB, " + text));
        full.setDefaults();
        QCOMPARE(listOf(1, 1), QStringList());
    }

private:
    QComboBox* slotBox(int bytes, int slot)
    {
        return child<QComboBox>(QStringLiteral("comboBox_User_%1Byte_%2").arg(bytes).arg(slot));
    }
    // What a slot offers beside nothing.
    QStringList listOf(int bytes, int slot)
    {
        QStringList list;
        for (int i = 1; i < slotBox(bytes, slot)->count(); ++i)
            list << slotBox(bytes, slot)->itemText(i);
        return list;
    }
    int size() { return text("label_Size_Value").toInt(); }

    void run(const QString& step)
    {
        const int bytes = step.mid(1, 1).toInt();
        if (step == "defaults")
            page_->setDefaults();
        else if (step.startsWith('+'))
            page_->userParamAdded("T", step.mid(3), {}, bytes);
        else if (step.startsWith('-'))
            page_->userParamDeleted("T", step.mid(3), {}, bytes);
        else {
            QComboBox* slot =
                child<QComboBox>("comboBox_User_" + step.section('=', 0, 0).replace("_", "Byte_"));
            const QString value = step.section('=', 1);
            slot->setCurrentIndex(value.isEmpty() ? 0
                                                  : slot->findText(value.size() > 1 ? value : "T, " + value));
        }
    }

    std::unique_ptr<PageWithSlots> page_;
    Vocabulary vocabulary_;
};

QTEST_MAIN(UserTabTest)
#include "tst_user_tab.moc"
