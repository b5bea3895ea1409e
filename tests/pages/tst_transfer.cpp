// The Transfer page and its two lists of operators: what depends on what, driven through widgets by name and
// through files that a reader other than ours looks at.

#include "host/device_r7106.h"
#include "pages/form_auto_apn_list_new.h"
#include "pages/form_config_transfer.h"
#include "pages/form_list_oper_roaming.h"
#include "xml/xml_document.h"

#include <QtTest>
#include <QtWidgets>
#include <QtXml>

using Values = QMap<QString, QString>; // "RULES/cnctType" to the text in the file

namespace {
// As in the library, the device and its windows last for the process.
VLK_Device_R7106& device()
{
    static VLK_Device_R7106 onlyOne;
    return onlyOne;
}
} // namespace

class TransferTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { page_.reset(); }
    void loadsShowsAndSaves_data();
    void loadsShowsAndSaves();
    void everyKeySurvives();
    void defaultFileReadsBackEqual();
    void defaults();
    void server();
    void testButtonNeedsAnAddress();
    void testResult_data();
    void testResult();
    void connectionType();
    void roamingMode_data();
    void roamingMode();
    void shortestPeriods();
    void groupTimer();
    void encryptionKey();
    void operators_data();
    void operators();
    void operatorOfAFile_data();
    void operatorOfAFile();
    void retranslateStartsLists();
    void apnList();
    void numberColumnIsNotEdited();
    void roamingList();

private:
    template <class T = QWidget>
    T* get(const char* name)
    {
        T* const widget = page_->findChild<T*>(QString::fromLatin1(name));
        if (!widget)
            qFatal("no widget %s", name);
        return widget;
    }
    QString textOf(const char* name) { return get<QLineEdit>(name)->text(); }
    int indexOf(const char* name) { return get<QComboBox>(name)->currentIndex(); }
    int valueOf(const char* name) { return get<QSpinBox>(name)->value(); }
    bool isOn(const char* name) { return get(name)->isEnabledTo(page_.get()); }
    void load(const Values& values);
    Values save();
    QString saved(const char* key) { return save().value(QString::fromLatin1(key), "(missing)"); }
    QTreeWidget* apnTree() { return get<QTreeWidget>("treeWidget_ListApn"); }
    QTreeWidget* roamingTree() { return get<QTreeWidget>("treeWidget_List"); }

    QTemporaryDir folder_;
    std::unique_ptr<VLK_Form_Config_Transfer> page_;
};

void TransferTest::initTestCase()
{
    device().initialize(nullptr);
    QVERIFY(folder_.isValid());
}

void TransferTest::init()
{
    page_ = std::make_unique<VLK_Form_Config_Transfer>();
}

void TransferTest::load(const Values& values)
{
    QDomDocument document;
    QDomNode trans =
        document.appendChild(document.createElement("DEVICE")).appendChild(document.createElement("TRANS"));
    for (auto value = values.begin(); value != values.end(); ++value) {
        const QString element = value.key().section('/', 0, 0);
        if (trans.firstChildElement(element).isNull())
            trans.appendChild(document.createElement(element));
        trans.firstChildElement(element).setAttribute(value.key().section('/', 1), value.value());
    }
    QFile file(folder_.filePath("in.xml"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(document.toByteArray());
    file.close();
    vlk::XmlDocument in(file.fileName(), "DEVICE");
    page_->loadFromXml(in.root());
}

Values TransferTest::save()
{
    const QString path = folder_.filePath("out.xml");
    QFile::remove(path);
    {
        vlk::XmlDocument out(path, "DEVICE");
        page_->saveToXml(out.root());
        out.save();
    }
    QFile file(path);
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
        return {};
    Values values;
    const QDomElement trans = document.documentElement().firstChildElement("TRANS");
    for (QDomElement group = trans.firstChildElement(); !group.isNull(); group = group.nextSiblingElement()) {
        const QDomNamedNodeMap attributes = group.attributes();
        for (int i = 0; i < attributes.size(); ++i) {
            const QDomAttr attribute = attributes.item(i).toAttr();
            values[group.tagName() + '/' + attribute.name()] = attribute.value();
        }
    }
    return values;
}

void TransferTest::loadsShowsAndSaves_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QString>("property");
    QTest::addColumn<QVariant>("shown");
    QTest::addColumn<QString>("saved");
    const auto row = [](const char* key, const char* text, const char* widget, const char* property,
                        const QVariant& shown, const char* saved) {
        QTest::addRow("%s=%s in %s", key, text, widget)
            << key << text << widget << property << shown << saved;
    };
    row("RULES/cnctType", "0", "Srv_Operation_comboBox_TypeConnect", "currentIndex", 1, "0");
    row("RULES/noCur", "(missing)", "checkBox_NoCur", "checked", true, "1");
    row("RULES/blockTimer", "300", "Srv_Operation_spinBox_Block_H", "value", 0, "300");
    row("RULES/blockTimer", "300", "Srv_Operation_spinBox_Block_M", "value", 5, "300");
    row("RULES/cnctTimer", "90060", "Srv_Operation_spinBox_Periodic_Connect_Period_H", "value", 1, "3660");
    row("RULES/cnctTimer", "-60", "Srv_Operation_spinBox_Periodic_Connect_Period_H", "value", 23, "86340");
    row("RULES/grpTimer", "0", "spinBox_GrpTimer", "enabled", false, "0");
    row("RULES/grpTimer", "45", "spinBox_GrpTimer", "value", 45, "45");
    row("ROAM/cnctTimer", "7200", "spinBox_RConnectPeriod", "value", 120, "7200");
    row("ROAM/blockTimer", "90000", "spinBox_RBlockH", "value", 25, "90000");
    row("ROAMSIM1/mode", "7", "comboBox_RModeSim_1", "currentIndex", 2, "2");
    row("ROAMSIM1/dontCnct", "5", "checkBox_sendData", "checked", false, "1");
    row("QSP/cnctTimer", "86400", "spinBox_QSP_CnctTimer_hh", "value", 0, "86400");
    row("QSP/cnctTimer", "90000", "spinBox_QSP_CnctTimer_hh", "value", 1, "90000");
    row("QSP/cnctTimer", "60", "spinBox_QSP_CnctTimer_mm", "value", 10, "600");
    row("SRV1/protocol", "VLKB_ZETA", "Transfer_comboBox_Protocol_Format_Main", "currentText", "ZETA",
        "ZETA");
    row("SRV1/objID", "2147483647", "Transfer_spinBox_Protocol_ObjectID_Main", "value", 2147483647.0,
        "2147483647");
    row("SRV2/addr", "", "GPRSSrv_groupBox_Reserv_1", "checked", true, "");
    row("SRV2/addr", "0.0.0.0", "GPRSSrv_groupBox_Reserv_1", "checked", false, "0.0.0.0");
}

void TransferTest::loadsShowsAndSaves()
{
    QFETCH(QString, key);
    QFETCH(QString, text);
    QFETCH(QString, widget);
    QFETCH(QString, property);
    Values values;
    if (text != "(missing)")
        values[key] = text;
    load(values);
    QTEST(get(qPrintable(widget))->property(qPrintable(property)), "shown");
    QTEST(save().value(key), "saved");
}

// A value other than the default for every key, most of them taken from the page's own rows.
void TransferTest::everyKeySurvives()
{
    Values values;
    for (const vlk::KeyGroup& group : page_->keys().groups()) {
        for (const auto& row : group.rows()) {
            for (const QString& sample : row.samples) {
                if (sample != row.loadDefault())
                    values[group.element() + '/' + row.key] = sample;
            }
        }
    }
    values["OBJECT/name"] = "Грузовик <7> & «прицеп»";
    values["AP1/pass"] = "a \"b\" 'c'";
    for (int row = 1; row <= 10; ++row) {
        for (const char* key : {"sID", "name", "login", "pass"})
            values[QString("AUTOAPN/%1%2").arg(key).arg(row)] = QString("%1-%2").arg(key).arg(row);
    }
    QCOMPARE(values.size(), 1 + 3 * 6 + 4 + 10 + 5 + 14 + 4 + 1 + 4 + 40);
    load(values);
    QCOMPARE(textOf("lineEdit_Name"), values["OBJECT/name"]);
    QCOMPARE(page_->objectName(), values["OBJECT/name"]);
    QCOMPARE(save(), values);
}

void TransferTest::defaultFileReadsBackEqual()
{
    const Values defaults = save();
    load(defaults);
    QCOMPARE(save(), defaults);
}

void TransferTest::defaults()
{
    load({{"SRV1/addr", "0.0.0.0"}, {"SRV2/addr", "b"}, {"CRYPTO/srv2Mode", "1"}, {"RULES/cnctType", "0"}});
    get<QComboBox>("comboBox_ServerType")->setCurrentIndex(2);
    QCOMPARE(get<QStackedWidget>("stackedWidget_Server")->currentWidget(), get("page_Reserv_2"));
    page_->setDefaults();
    QCOMPARE(get<QStackedWidget>("stackedWidget_Server")->currentWidget(), get("page_Main"));
    const Values values = save();
    const Values expected = {
        {"OBJECT/name", "R-7106_Config"}, {"SRV1/addr", ""},         {"SRV1/port", "0"},
        {"SRV2/addr", "0.0.0.0"},         {"SRV2/dcID", "1"},        {"RULES/cnctType", "1"},
        {"RULES/grpTimer", "30"},         {"ROAMSIM1/mode", "2"},    {"CRYPTO/srv2Mode", "0"},
        {"QSP/cnctTimer", "86400"},       {"ROAM/blockTimer", "300"}};
    for (auto value = expected.begin(); value != expected.end(); ++value)
        QCOMPARE(value.key() + '=' + values[value.key()], value.key() + '=' + value.value());
    QCOMPARE(indexOf("Transfer_comboBox_GSM_Operator_1"), 5);
    QVERIFY(!isOn("frame_Crypto"));
    QVERIFY(isOn("Srv_Operation_frame_Permanent_Connect"));
}

void TransferTest::server()
{
    auto* use = get<QGroupBox>("GPRSSrv_groupBox_Reserv_1");
    use->setChecked(true);
    QCOMPARE(saved("SRV2/addr"), QString("0.0.0.0"));
    QCOMPARE(saved("SRV2/port"), QString("4000"));
    get<QLineEdit>("GPRSSrv_lineEdit_IP_DNS_Reserv_1")->setText("track.example");
    QCOMPARE(saved("SRV2/addr"), QString("track.example"));
    use->setChecked(false);
    QCOMPARE(textOf("GPRSSrv_lineEdit_IP_DNS_Reserv_1"), QString());
    get<QLineEdit>("GPRSSrv_lineEdit_IP_DNS_Reserv_1")->setText("typed.example");
    QCOMPARE(saved("SRV2/addr"), QString("0.0.0.0"));
    load(save());
    QVERIFY(!use->isChecked());
    QCOMPARE(textOf("GPRSSrv_lineEdit_IP_DNS_Reserv_1"), QString("0.0.0.0"));

    auto* protocol = get<QComboBox>("Transfer_comboBox_Protocol_Format_Main");
    protocol->setCurrentIndex(-1);
    QCOMPARE(saved("SRV1/protocol"), QString("VLKB_ZETA"));
}

void TransferTest::testButtonNeedsAnAddress()
{
    load({{"SRV1/addr", "a.example"}, {"SRV2/addr", "0.0.0.0"}, {"SRV3/addr", ""}});
    QVERIFY(isOn("GPRSSrv_toolButton_Test_Main"));
    QVERIFY(!isOn("GPRSSrv_toolButton_Test_Reserv_1"));
    QVERIFY(!isOn("GPRSSrv_toolButton_Test_Reserv_2"));
    get<QLineEdit>("GPRSSrv_lineEdit_IP_DNS_Main")->clear();
    QVERIFY(!isOn("GPRSSrv_toolButton_Test_Main"));
    get<QGroupBox>("GPRSSrv_groupBox_Reserv_1")->setChecked(true);
    QVERIFY(isOn("GPRSSrv_toolButton_Test_Reserv_1"));
}

void TransferTest::testResult_data()
{
    QTest::addColumn<bool>("ok");
    QTest::addColumn<QString>("text");
    QTest::newRow("answers") << true << "cfgt1_109";
    QTest::newRow("silent") << false << "cfgt1_108";
}

void TransferTest::testResult()
{
    QFETCH(bool, ok);
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QTimer::singleShot(0, this, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        text = box->text();
        icon = box->icon();
        box->buttons().first()->click();
    });
    page_->slot_testConnected("127.0.0.1", "localhost", ok);
    QTEST(text, "text");
    QCOMPARE(icon, QMessageBox::Warning);
}

void TransferTest::connectionType()
{
    get<QComboBox>("Srv_Operation_comboBox_TypeConnect")->setCurrentIndex(1);
    QVERIFY(!isOn("Srv_Operation_frame_Permanent_Connect"));
    QVERIFY(isOn("Srv_Operation_frame_Periodic_Connect"));
    QCOMPARE(saved("RULES/cnctType"), QString("0"));
    load({});
    QVERIFY(isOn("Srv_Operation_frame_Permanent_Connect"));
    QVERIFY(!isOn("Srv_Operation_frame_Periodic_Connect"));
}

void TransferTest::roamingMode_data()
{
    QTest::addColumn<QStringList>("enabled");
    QTest::newRow("0") << QStringList{"noSms", "noCall", "block"};
    QTest::newRow("1") << QStringList{"noSms", "noCall", "connect", "block"};
    QTest::newRow("2") << QStringList{};
    QTest::newRow("3") << QStringList{"noSms", "noCall", "records", "block"};
}

void TransferTest::roamingMode()
{
    get<QComboBox>("comboBox_RModeSim_1")->setCurrentIndex(QByteArray(QTest::currentDataTag()).toInt());
    QStringList enabled;
    const std::pair<const char*, const char*> parts[] = {{"checkBox_RNoSmsSim_1", "noSms"},
                                                         {"checkBox_RNoCallSim_1", "noCall"},
                                                         {"frame_RPerion", "records"},
                                                         {"frame_RConnectPeriod", "connect"},
                                                         {"frame_RBlock", "block"}};
    for (const auto& [widget, word] : parts) {
        if (isOn(widget))
            enabled << word;
    }
    QTEST(enabled, "enabled");
}

void TransferTest::shortestPeriods()
{
    get<QSpinBox>("spinBox_RBlockH")->setValue(1);
    get<QSpinBox>("spinBox_RBlockM")->setValue(0);
    QCOMPARE(saved("ROAM/blockTimer"), QString("3600"));
    get<QSpinBox>("spinBox_RBlockH")->setValue(0);
    QCOMPARE(saved("ROAM/blockTimer"), QString("300"));

    get<QSpinBox>("spinBox_QSP_CnctTimer_dd")->setValue(0);
    QCOMPARE(saved("QSP/cnctTimer"), QString("600"));
    get<QSpinBox>("spinBox_QSP_CnctTimer_hh")->setValue(2);
    get<QSpinBox>("spinBox_QSP_CnctTimer_mm")->setValue(0);
    QCOMPARE(saved("QSP/cnctTimer"), QString("7200"));
    get<QSpinBox>("spinBox_QSP_CnctTimer_hh")->setValue(0);
    QCOMPARE(saved("QSP/cnctTimer"), QString("600"));
}

void TransferTest::groupTimer()
{
    get<QSpinBox>("spinBox_GrpTimer")->setValue(200);
    get<QCheckBox>("checkBox_GrpTimer")->setChecked(false);
    QVERIFY(!isOn("spinBox_GrpTimer"));
    QCOMPARE(saved("RULES/grpTimer"), QString("0"));
    get<QCheckBox>("checkBox_GrpTimer")->setChecked(true);
    QCOMPARE(valueOf("spinBox_GrpTimer"), 30);
    QCOMPARE(get<QSpinBox>("spinBox_GrpTimer")->maximum(), 300);
}

void TransferTest::encryptionKey()
{
    QVERIFY(!isOn("pushButton_Crypto"));
    get<QCheckBox>("Transfer_checkBox_Protocol_Crypto_Reserv_2")->setChecked(true);
    static const QRegularExpression form("^(?!(..)*F[EF])[0-9A-F]{32}$");
    QSet<QString> keys;
    for (int i = 0; i < 200; ++i) {
        get<QPushButton>("pushButton_Crypto")->click();
        QVERIFY2(form.match(textOf("lineEdit_Crypto")).hasMatch(), qPrintable(textOf("lineEdit_Crypto")));
        keys << textOf("lineEdit_Crypto");
    }
    QCOMPARE(keys.size(), 200);
    QCOMPARE(saved("CRYPTO/key"), textOf("lineEdit_Crypto"));
    get<QPushButton>("pushButton_Crypto_Clear")->click();
    QCOMPARE(saved("CRYPTO/key"), QString());
}

void TransferTest::operators_data()
{
    QTest::addColumn<int>("item");
    QTest::addColumn<bool>("hasApn");
    QTest::addColumn<bool>("hasLogin");
    QTest::addColumn<bool>("editable");
    QTest::addColumn<bool>("list");
    QTest::newRow("1") << 0 << true << true << false << false;
    QTest::newRow("2") << 1 << true << true << false << false;
    QTest::newRow("3") << 2 << true << false << false << false;
    QTest::newRow("4") << 3 << true << false << false << false;
    QTest::newRow("5") << 4 << true << true << false << false;
    QTest::newRow("automatic") << 5 << false << false << false << true;
    QTest::newRow("other") << 6 << false << false << true << false;
}

void TransferTest::operators()
{
    QFETCH(int, item);
    load({{"AP1/name", "own.apn"}});
    get<QComboBox>("Transfer_comboBox_GSM_Operator_1")->setCurrentIndex(6 - item);
    get<QComboBox>("Transfer_comboBox_GSM_Operator_1")->setCurrentIndex(item);
    QTEST(!textOf("Transfer_lineEdit_GSM_APN_1").isEmpty(), "hasApn");
    QTEST(!textOf("Transfer_lineEdit_GSM_Login_1").isEmpty(), "hasLogin");
    QCOMPARE(textOf("Transfer_lineEdit_GSM_Login_1"), textOf("Transfer_lineEdit_GSM_Psw_1"));
    QTEST(isOn("Transfer_lineEdit_GSM_APN_1"), "editable");
    QTEST(isOn("pushButton_AutoAPN_1"), "list");
    // What a preset fills in is recognised when it comes back from a file.
    const Values values = save();
    page_->setDefaults();
    load(values);
    QCOMPARE(indexOf("Transfer_comboBox_GSM_Operator_1"), item == 6 ? 5 : item);
}

void TransferTest::operatorOfAFile_data()
{
    QTest::addColumn<QString>("apn");
    QTest::addColumn<QString>("login");
    QTest::addColumn<int>("item");
    QTest::newRow("empty") << ""
                           << "" << 5;
    QTest::newRow("unknown") << "own.apn"
                             << "me" << 6;
    QTest::newRow("another login") << "internet.mts.ru"
                                   << "me" << 6;
    QTest::newRow("login alone") << ""
                                 << "me" << 6;
}

void TransferTest::operatorOfAFile()
{
    QFETCH(QString, apn);
    QFETCH(QString, login);
    for (int before = 0; before < 7; ++before) {
        get<QComboBox>("Transfer_comboBox_GSM_Operator_1")->setCurrentIndex(before);
        load({{"AP1/name", apn}, {"AP1/login", login}});
        QTEST(indexOf("Transfer_comboBox_GSM_Operator_1"), "item");
        QCOMPARE(textOf("Transfer_lineEdit_GSM_APN_1"), apn);
        QCOMPARE(textOf("Transfer_lineEdit_GSM_Login_1"), login);
    }
}

// Servers stay, although their lists start anew.
void TransferTest::retranslateStartsLists()
{
    load({{"SRV1/addr", "a.example"}, {"SRV1/protocol", "UNDS"}, {"ROAMSIM1/mode", "3"}});
    page_->retranslate();
    for (const QComboBox* list : page_->findChildren<QComboBox*>())
        QCOMPARE(list->currentIndex(), 0);
    QCOMPARE(saved("SRV1/addr"), QString("a.example"));
    QVERIFY(isOn("frame_RBlock"));
    QVERIFY(!isOn("frame_RPerion"));
}

void TransferTest::apnList()
{
    const QTreeWidget* tree = apnTree();
    QCOMPARE(tree->topLevelItemCount(), 10);
    const QTreeWidgetItem* first = tree->topLevelItem(0);
    const QTreeWidgetItem* seventh = tree->topLevelItem(6);
    QCOMPARE(first->text(1), QString("25001"));
    QCOMPARE(first->text(3), first->text(4));
    QCOMPARE(seventh->text(3), '@' + seventh->text(2).section('.', 0, -2));
    QCOMPARE(seventh->text(4), tree->topLevelItem(1)->text(3));
    for (int column = 2; column <= 4; ++column)
        QCOMPARE(tree->topLevelItem(9)->text(column), first->text(3));

    // An emptied row stays empty, a missing key takes its cell's default.
    Values values = save();
    for (const char* key : {"AUTOAPN/sID3", "AUTOAPN/name3", "AUTOAPN/login3", "AUTOAPN/pass3"})
        values[key].clear();
    values.remove("AUTOAPN/name4");
    page_->setDefaults();
    load(values);
    QCOMPARE(tree->topLevelItem(2)->text(1) + tree->topLevelItem(2)->text(2), QString());
    QVERIFY(!tree->topLevelItem(3)->text(2).isEmpty());
    QCOMPARE(saved("AUTOAPN/sID3"), QString());

    // The quick window writes over the group that is there.
    const QString path = folder_.filePath("quick.xml");
    {
        vlk::XmlDocument out(path, "DEVICE");
        page_->saveToXml(out.root());
        apnTree()->topLevelItem(0)->setText(2, "changed");
        const CXmlSectionPtr trans = out.root()->child("TRANS");
        page_->findChild<VLK_FormAutoApnListNew*>()->saveToXmlQuick(trans.get());
        out.save();
    }
    QFile file(path);
    QDomDocument document;
    QVERIFY(file.open(QIODevice::ReadOnly) && document.setContent(&file));
    QCOMPARE(document.elementsByTagName("AUTOAPN").size(), 1);
    QCOMPARE(document.elementsByTagName("AUTOAPN").at(0).toElement().attribute("name1"), QString("changed"));
}

void TransferTest::numberColumnIsNotEdited()
{
    get<QPushButton>("pushButton_AutoAPN_1")->click();
    get<QPushButton>("pushButton_RListOperSim_1")->click();
    for (QTreeWidget* tree : {apnTree(), roamingTree()}) {
        QVERIFY(tree->isVisible());
        for (const int column : {1, 0, 1}) {
            const QRect cell = tree->visualRect(tree->model()->index(4, column));
            QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, cell.center());
            QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, cell.center());
            auto* editor = tree->viewport()->findChild<QLineEdit*>();
            QCOMPARE(editor != nullptr, column > 0);
            if (editor)
                QTest::keyClick(editor, Qt::Key_Escape);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }
}

void TransferTest::roamingList()
{
    QTreeWidget* tree = roamingTree();
    auto* up = get<QPushButton>("pushButton_Up");
    auto* down = get<QPushButton>("pushButton_Down");
    QVERIFY(!isOn("pushButton_Up") && isOn("pushButton_Down"));
    QCOMPARE(tree->topLevelItem(2)->text(1), QString());
    load({{"ROAMSIM1/opCode8", "8"}, {"ROAMSIM1/opCode9", "9"}, {"ROAMSIM1/opCode10", "10"}});
    QCOMPARE(tree->topLevelItem(2)->text(1), QString("0"));
    tree->setCurrentItem(tree->topLevelItem(9));
    QVERIFY(up->isEnabled() && !down->isEnabled());
    up->click();
    QVERIFY(up->isEnabled() && down->isEnabled());
    up->click();
    QCOMPARE(tree->indexOfTopLevelItem(tree->currentItem()), 7);
    QCOMPARE(tree->topLevelItem(7)->text(0), QString("8"));
    const Values values = save();
    QCOMPARE(values["ROAMSIM1/opCode8"] + ' ' + values["ROAMSIM1/opCode9"] + ' ' +
                 values["ROAMSIM1/opCode10"],
             QString("10 8 9"));
    tree->setCurrentItem(tree->topLevelItem(1));
    up->click();
    QVERIFY(!up->isEnabled() && down->isEnabled());
    tree->topLevelItem(0)->setText(1, "no number");
    QCOMPARE(saved("ROAMSIM1/opCode1"), QString("0"));
    get<QPushButton>("pushButton_RListOperSim_1")->click();
    QTest::mousePress(get<QPushButton>("pushButton_Ok"), Qt::LeftButton);
    QVERIFY(!tree->isVisible());
}

QTEST_MAIN(TransferTest)
#include "tst_transfer.moc"
