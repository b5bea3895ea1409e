// What is made of a configuration as a whole: presets, and the report.

#include "dialog/difference_model.h"
#include "dialog/report_sheet.h"
#include "pages/opened_configuration.h"
#include "review/report.h"
#include "settings/all_settings.h"
#include "support/files.h"
#include "support/full_disk.h"

#include <QtTest>
#include <QtWidgets>

class PresetsAndReportTest : public QObject, private OpenedConfiguration
{
    Q_OBJECT

    struct Counts : QTranslator
    {
        QString translate(const char*, const char* key, const char*, int) const override
        {
            return key == QLatin1String("rev_380") ? QStringLiteral("%1|%2 of %3") : QString();
        }
    };

private Q_SLOTS:
    void init() { start(); }
    void cleanup() { end(); }

    // The settings that were changed go into a preset, the object's name on
    // demand, and come from there in one step, in either window beside what was
    // edited there.
    void presetIsSavedAndApplied()
    {
        Counts counts;
        QCoreApplication::installTranslator(&counts);
        type(child<QSpinBox>("GPRSSrv_spinBox_Port_Main"), "5555");
        type(child<QLineEdit>("lineEdit_Name"), "KAMAZ");
        for (const bool named : {true, false}) {
            QTest::keyClick(dialog_.get(), Qt::Key_D, Qt::ControlModifier);
            answerNext<QMessageBox>([named](QMessageBox* box) {
                if (named)
                    QTest::keyClick(box->checkBox(), Qt::Key_Space);
                QTest::keyClick(box, Qt::Key_Return);
            });
            const QString path = folder_.filePath(named ? "named.xml" : "chosen.xml");
            chooseNext(path);
            child<QPushButton>("pushButton_SavePreset")->click();
            QCOMPARE(child<QLabel>("label_Unsaved")->text().section("|", 1),
                     QString("%1 of 2").arg(named ? 2 : 1));
            const QByteArray preset = readFile(path);
            QVERIFY(preset.contains("<DEVICE creator=\"preset\">") && preset.contains("port=\"5555\""));
            QCOMPARE(preset.contains("KAMAZ"), named);
            QVERIFY(!named || !(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther)));
            QCOMPARE(preset.count('='), named ? 6 : 5);
            QTest::keyClick(dialog_.get(), Qt::Key_D, Qt::ControlModifier);
        }
        // The menu takes what was edited, whatever the closed panel compared with last.
        QTest::keyClick(dialog_.get(), Qt::Key_D, Qt::ControlModifier);
        QTest::keyClick(child<QComboBox>("comboBox_Against"), Qt::Key_Down);
        child<QToolButton>("toolButton_CloseDifferences")->click();
        answerNext<QMessageBox>([](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Return); });
        chooseNext(folder_.filePath("menu.xml"));
        child<QPushButton>("pushButton_Document")->menu()->actions().at(1)->trigger();
        QCoreApplication::processEvents();
        QCOMPARE(readFile(folder_.filePath("menu.xml")), readFile(folder_.filePath("chosen.xml")));
        while (!history().undoText().isEmpty())
            history().undo();
        const QByteArray before = saved();
        chooseNext(folder_.filePath("chosen.xml"));
        child<QPushButton>("pushButton_Document")->menu()->actions().first()->trigger();
        QCoreApplication::processEvents();
        auto* table = child<QTableView>("tableView_Differences");
        QVERIFY(table->isVisible());
        QCOMPARE(table->model()->rowCount(), 1);
        // An edit beside the preset is none of its differences.
        type(child<QLineEdit>("lineEdit_Name"), "MAZ");
        QCOMPARE(table->model()->rowCount(), 1);
        child<QPushButton>("pushButton_TakeOver")->click();
        QCOMPARE(table->model()->rowCount(), 0);
        QVERIFY(saved().contains("port=\"5555\"") && saved().contains("\"MAZ\""));
        history().undo();
        history().undo();
        QCOMPARE(saved(), before);

        dialog_->switchToQuick();
        auto* light = dialog_->findChild<QWidget*>("page_Light");
        auto* address = light->findChild<QLineEdit*>("GPRSSrv_lineEdit_IP_DNS_Main");
        QVERIFY(dialog_->showPreset(folder_.filePath("chosen.xml")));
        type(address, "example.com");
        QCOMPARE(table->model()->rowCount(), 1);
        child<QPushButton>("pushButton_TakeOver")->click();
        QCOMPARE(light->findChild<QSpinBox*>("GPRSSrv_spinBox_Port_Main")->value(), 5555);
        QCOMPARE(address->text(), QString("example.com"));
    }

    // It sets all fields of a record, which is told before and behind. What is
    // there keeps its name.
    void presetOfOneField()
    {
        const QString here = QDir::currentPath();
        QDir::setCurrent(folder_.path());
        QDir().mkpath(device_.xmlFolder());
        for (const QString& folder : {device_.xmlFolder(), folder_.path()})
            writeFile(folder + "/Rev_204.XML", {});
        auto* box = child<QCheckBox>("checkBox_State_2");
        box->click();
        history().settle();
        child<QToolButton>("toolButton_Differences")->click();
        Counts counts;
        QCoreApplication::installTranslator(&counts);
        const QString path = folder_.filePath(QString("field").repeated(40) + ".xml");
        chooseNext(path);
        child<QPushButton>("pushButton_SavePreset")->click();
        QCOMPARE(suggested_, QString("rev_204 (2).xml"));
        QDir::setCurrent(here);
        // What becomes of the rest is in sight, however long the name is.
        const auto* told = child<QLabel>("label_Unsaved");
        const QStringList lines = told->text().split('\n');
        QVERIFY(lines[0].endsWith("field.xml|1 of 1"));
        QTRY_VERIFY(told->fontMetrics().horizontalAdvance(lines[0]) <= told->width());
        QCOMPARE(lines[1], QString("rev_382"));
        QCOMPARE(told->toolTip(), path + "\nrev_252");
        history().undo();
        QVERIFY(dialog_->showPreset(path));
        auto* model = child<QTableView>("tableView_Differences")->model();
        QCOMPARE(model->rowCount(), 1);
        QCOMPARE(model->index(0, vlk::DifferenceModel::Note).data().toString(), QString("rev_251"));
    }

    // Each kind is looked for where one was saved or opened last, whatever became of the other kinds.
    void folderOfTheLastFile()
    {
        const QDir folder(folder_.path());
        for (const char* kind : {"presets", "tables", "reports", "others"})
            folder.mkdir(kind);
        for (const char* name : {"others/other.xml", "others/b other.xml"})
            QFile::copy(VLK_SOURCE "/fuzz/corpus/settings/factory.xml", folder_.filePath(name));
        type(child<QSpinBox>("GPRSSrv_spinBox_Port_Main"), "5555");
        child<QToolButton>("toolButton_Differences")->click();
        const auto press = [this](const char* name) {
            return [this, name] { child<QPushButton>(name)->click(); };
        };
        const auto against = [this](int side) {
            return [this, side] { Q_EMIT child<QComboBox>("comboBox_Against")->activated(side); };
        };
        const std::function<void()> report = [this] {
            child<QPushButton>("pushButton_Document")->menu()->actions().last()->trigger();
            QCoreApplication::processEvents();
            child<QPushButton>("pushButton_ReportHtml")->click();
        };
        const std::tuple<const char*, const char*, std::function<void()>> rows[] = {
            {"presets", "a.xml", press("pushButton_SavePreset")},
            {"tables", "a.csv", press("pushButton_SaveDifferences")},
            {"reports", "a.html", report},
            {"others", "other.xml", against(2)},
            {"presets", "a.xml", against(3)}};
        for (const bool again : {false, true}) {
            dialog_->review().compareWith(vlk::ConfigurationReview::Against::File);
            for (const auto& [kind, name, ask] : rows) {
                chooseNext(folder_.filePath(QString("%1/%2").arg(kind, again ? "b " + QString(name) : name)));
                ask();
                QVERIFY2(!again || startedIn_ == kind, qPrintable(startedIn_));
            }
        }
    }

    // The other events of an output become what their list calls it.
    void presetOfEvents()
    {
        for (const auto& [name, key] : {std::pair("comboBox_UseAs_O1", Qt::Key_Home),
                                        std::pair("comboBox_AutoSwitch_In2_O1", Qt::Key_End)}) {
            auto* list = child<QComboBox>(name);
            list->setFocus();
            QTest::keyClick(list, key);
        }
        history().settle();
        child<QToolButton>("toolButton_Differences")->click();
        const QString path = folder_.filePath("events.xml");
        chooseNext(path);
        child<QPushButton>("pushButton_SavePreset")->click();
        QCOMPARE(child<QLabel>("label_Unsaved")->toolTip(), QString("rev_342"));
        history().undo();
        QVERIFY(dialog_->showPreset(path));
        auto* model = child<QTableView>("tableView_Differences")->model();
        const QModelIndex first = model->index(0, vlk::DifferenceModel::Note);
        QCOMPARE(model->match(first, Qt::DisplayRole, "rev_341").size(), 1);
    }

    // What it has beyond quick setup is told, the rest is done. What another file has alone is told likewise.
    void presetBeyondQuickSetup()
    {
        const QString path = folder_.filePath("more.xml");
        const QByteArray preset =
            readFile(VLK_SOURCE "/fuzz/corpus/settings/factory.xml").replace("4000", "5555");
        writeFile(path, preset);
        open({}, 0);
        auto* model = child<QTableView>("tableView_Differences")->model();
        const auto notes = [model] {
            QStringList notes;
            for (int line = 0; line < model->rowCount(); ++line)
                notes << model->index(line, vlk::DifferenceModel::Note).data().toString();
            return notes;
        };
        child<QToolButton>("toolButton_Differences")->click();
        QVERIFY(dialog_->review().compareWith(vlk::ConfigurationReview::Against::OtherFile, path));
        QVERIFY(notes().contains("rev_280") && !notes().contains("rev_005"));
        // What stays out of reach stands behind lines that cannot be chosen; the
        // rest is done without a word.
        const auto heads = [model] {
            int heads = 0;
            for (int line = 0; line < model->rowCount(); ++line) {
                const bool isHead = model->index(line, vlk::DifferenceModel::Caption).data() == "▸ rev_298";
                const bool isChosen = model->index(line, 0).data(Qt::CheckStateRole).isValid();
                heads += isHead && !isChosen ? 1 : 0;
            }
            return heads;
        };
        QVERIFY(dialog_->showPreset(path));
        QVERIFY(!notes().contains("rev_005"));
        // The sensors of a line come with their numbers.
        auto* differences = static_cast<vlk::DifferenceModel*>(model);
        const auto choose = [&](const auto& isChosen) {
            for (int line = 0; line < model->rowCount(); ++line)
                differences->choose({line}, isChosen(differences->at(line).path));
        };
        choose([](const QString& path) { return path == "RS485/OPTIONS/owner1"; });
        QCOMPARE(differences->chosenKeys().size(), 1U);
        child<QPushButton>("pushButton_TakeOver")->click();
        QVERIFY(child<QLabel>("label_Unsaved")->text().isEmpty());
        QVERIFY(!dialog_->review().differences().isDifferent(
            vlk::review::FileKeys::all().at("RS485/OPTIONS/owner1")));
        history().undo();
        QVERIFY(dialog_->showPreset(path));
        choose([](const QString& /*path*/) { return true; });
        const int beyond = heads();
        QVERIFY(beyond > 0 && model->rowCount() > beyond);
        child<QPushButton>("pushButton_TakeOver")->click();
        QVERIFY(child<QLabel>("label_Unsaved")->text() != "rev_284");
        QTRY_COMPARE(model->rowCount(), beyond);
        QCOMPARE(heads(), beyond);
        QCOMPARE(dialog_->findChild<QWidget*>("page_Light")
                     ->findChild<QSpinBox*>("GPRSSrv_spinBox_Port_Main")
                     ->value(),
                 5555);
        QVERIFY(model->headerData(2, Qt::Horizontal, Qt::ToolTipRole) == "rev_192: more.xml");
        QCOMPARE(model->headerData(2, Qt::Horizontal, Qt::DisplayRole).toString(), QString("more.xml"));
        // The other window takes them, and what was told in this one goes with it: what quick setup has made
        // of them is told in its place.
        chooseNext(folder_.filePath("told.csv"));
        child<QPushButton>("pushButton_SaveDifferences")->click();
        QCOMPARE(child<QLabel>("label_Unsaved")->text(), QString("rev_218"));
        dialog_->switchToFull();
        QCOMPARE(child<QLabel>("label_Unsaved")->text(), QString("rev_751"));
        QTRY_COMPARE(heads(), 0);
        QVERIFY(notes().contains("rev_282"));
    }

    // Quick setup finds the operator of what a preset brings as full setup does, and an operator that was
    // chosen there stays beside what a preset brings of other settings.
    void presetOfAnAccessPoint()
    {
        const QString path = folder_.filePath("point.xml");
        const auto apply = [&](const char* preset) {
            writeFile(path, preset);
            QVERIFY(dialog_->showPreset(path));
            child<QPushButton>("pushButton_TakeOver")->click();
        };
        open({}, 0);
        auto* page = dialog_->findChild<QWidget*>("page_Light");
        auto* list = page->findChild<QComboBox*>("Transfer_comboBox_GSM_Operator_1");
        auto* point = page->findChild<QLineEdit*>("Transfer_lineEdit_GSM_APN_1");
        const auto shown = [&] {
            return QStringList{QString::number(list->currentIndex()), point->text(),
                               point->isEnabled() ? "open" : "locked"};
        };
        const auto choose = [list](Qt::Key key, int times) {
            list->setFocus();
            while (times-- > 0)
                QTest::keyClick(list, key);
        };
        choose(Qt::Key_Up, 5);
        const QStringList first{"0", "internet.mts.ru", "locked"};
        QCOMPARE(shown(), first);
        apply("<DEVICE creator=\"preset\"><TRANS><AP1 name=\"internet.fleet\"/></TRANS></DEVICE>");
        const QStringList other{"6", "internet.fleet", "open"};
        QCOMPARE(shown(), other);
        apply("<DEVICE creator=\"preset\"><TRANS><SRV1 port=\"5555\"/></TRANS></DEVICE>");
        QCOMPARE(page->findChild<QSpinBox*>("GPRSSrv_spinBox_Port_Main")->value(), 5555);
        QCOMPARE(shown(), other);
        history().undo();
        history().undo();
        QCOMPARE(shown(), first);
        history().redo();
        QCOMPARE(shown(), other);
        open({}, 0);
        apply("<DEVICE creator=\"preset\"><TRANS><AP1 name=\"internet.beeline.ru\" login=\"beeline\" "
              "pass=\"beeline\"/></TRANS></DEVICE>");
        QCOMPARE(shown(), QStringList({"1", "internet.beeline.ru", "locked"}));
    }

    // What does not fit comes first, with its reason and without a check mark; a full disk is told.
    void presetsInTrouble()
    {
        const QString path = folder_.filePath("bad.xml");
        writeFile(path, "<DEVICE creator=\"preset\"><TRACK><POINTS angle=\"7\" "
                        "dist=\"far\" bend=\"1\"/>"
                        "<POINTS angle=\"8\"/></TRACK></DEVICE>");
        QVERIFY(dialog_->showPreset(path));
        auto* model = child<QTableView>("tableView_Differences")->model();
        QStringList notes;
        for (int line = 0; line < model->rowCount(); ++line)
            notes << model->index(line, vlk::DifferenceModel::Note).data().toString() +
                         (model->index(line, 0).data(Qt::CheckStateRole).isNull() ? "" : "+");
        QCOMPARE(notes, QStringList({"rev_184", "rev_185", "rev_187", "+"}));
        QVERIFY(dialog_->showPreset(writeFile(path, "<DEVICE creator=\"preset\"><OUTPUTS><LINE1 "
                                                    "mode=\"ZUM\" safeBlock=\"1\"/></OUTPUTS></DEVICE>")));
        QVERIFY(model->index(0, 2).data().toString() != "1");
        QCOMPARE(model->index(0, vlk::DifferenceModel::Note).data().toString(), QString("rev_285"));
        QVERIFY(!dialog_->showPreset("no such file"));
        QVERIFY(!dialog_->showPreset(writeFile(path, "<OTHER creator=\"preset\"/>")));
        QString told;
        const auto tell = [&told](QMessageBox* box) {
            told = box->text();
            QTest::keyClick(box, Qt::Key_Return);
        };
        // Nothing has been changed that a preset could hold.
        dialog_->review().compareWith(vlk::ConfigurationReview::Against::File);
        answerNext<QMessageBox>(tell);
        child<QPushButton>("pushButton_Document")->menu()->actions().at(1)->trigger();
        QCoreApplication::processEvents();
        QCOMPARE(told, QString("rev_226"));
        child<QToolButton>("toolButton_Differences")->click();
        type(child<QSpinBox>("GPRSSrv_spinBox_Port_Main"), "5555");
        child<QToolButton>("toolButton_Differences")->click();
        chooseNext(folder_.filePath("full.xml"));
        answerNext<QMessageBox>(tell);
        const FullDisk disk(10);
        child<QPushButton>("pushButton_SavePreset")->click();
        QCOMPARE(told, QString("rev_198"));
        QVERIFY(!QFile::exists(folder_.filePath("full.xml")));
        chooseNext(folder_.filePath("full.csv"));
        child<QPushButton>("pushButton_SaveDifferences")->click();
        QCOMPARE(child<QLabel>("label_Unsaved")->text(), QString("rev_198"));
    }

    void reportIsKept()
    {
        type(child<QLineEdit>("Transfer_lineEdit_GSM_Pin1"), "8765");
        type(child<QLineEdit>("lineEdit_Name"), "MAZ/5440");
        // What is still being typed is in it, too.
        auto* port = child<QSpinBox>("GPRSSrv_spinBox_Port_Main");
        port->setFocus();
        port->selectAll();
        QTest::keyClicks(port, "5555");
        QTest::keyClick(port, Qt::Key_P, Qt::ControlModifier);
        auto* preview = child<QTextBrowser>("textBrowser_Report");
        QVERIFY(preview->isVisible());
        // What nobody has written yet does not pass for what the tracker has.
        QVERIFY(preview->toPlainText().contains("rev_352"));
        const int all = preview->toPlainText().size();
        child<QCheckBox>("checkBox_OnePage")->click();
        QVERIFY(preview->toPlainText().size() < all / 2);
        QTest::keyClick(child<QComboBox>("comboBox_ReportContents"), Qt::Key_Down);
        QVERIFY(preview->toPlainText().contains("5555") && !preview->toPlainText().contains("8765"));
        const auto save = [&](const char* button, const QString& path) {
            chooseNext(path);
            child<QPushButton>(button)->click();
            return readFile(path);
        };
        QVERIFY(save("pushButton_ReportPdf", folder_.filePath("report.pdf")).startsWith("%PDF"));
        QCOMPARE(suggested_, QString("rev_217 MAZ_5440.pdf"));
        child<QCheckBox>("checkBox_ReportSecrets")->click();
        const QString html = folder_.filePath("report.html");
        QVERIFY(save("pushButton_ReportHtml", html).contains("8765"));
        QVERIFY(!(QFile::permissions(html) & (QFile::ReadGroup | QFile::ReadOther)));
        auto* notice = child<QLabel>("label_ReportNotice");
        QCOMPARE(notice->text(), QString("rev_218"));
        const FullDisk disk(10);
        QCOMPARE(save("pushButton_ReportPdf", folder_.filePath("full.pdf")), QByteArray("no file"));
        QCOMPARE(notice->text(), QString("rev_198"));
    }

    // What quick setup makes anew is nobody's change.
    void reportOfNoEdit()
    {
        open(VLK_SOURCE "/fuzz/corpus/settings/factory.xml", 0);
        QTest::keyClick(dialog_.get(), Qt::Key_P, Qt::ControlModifier);
        const QString report = child<QTextBrowser>("textBrowser_Report")->toPlainText();
        QVERIFY(report.contains("rev_370") && !report.contains("rev_352"));
    }

    // As it is named before a write; what is secret stays so.
    void reportOfWhatWasNotTaken()
    {
        open(VLK_SOURCE "/fuzz/corpus/settings/factory.xml");
        type(child<QSpinBox>("GPRSSrv_spinBox_Port_Main"), "12x");
        type(child<QLineEdit>("Transfer_lineEdit_GSM_Pin1"), "1234a");
        QTest::keyClick(dialog_.get(), Qt::Key_P, Qt::ControlModifier);
        const QString report = child<QTextBrowser>("textBrowser_Report")->toPlainText();
        QVERIFY2(report.contains(": typed_number") && report.contains(": \u2022\u2022\u2022"),
                 qPrintable(report.left(400)));
    }

    // One page is filled, with letters that can be read.
    void onePageIsFilled()
    {
        QBuffer file;
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QPdfWriter pdf(&file);
        const QString line = "<p>A setting and its value</p>";
        QCOMPARE(vlk::pointsOnOnePage(line.repeated(5), pdf), 9.5);
        const qreal points = vlk::pointsOnOnePage(line.repeated(42), pdf);
        QVERIFY2(points > 6 && points < 9.5, qPrintable(QString::number(points)));
    }

    // Hosts and addresses are read in one line, also in large letters.
    void addressesAreNotBroken()
    {
        QBuffer file;
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QPdfWriter pdf(&file);
        vlk::Configuration configuration(vlk::allSettings());
        const QString values[] = {"telemetry1.example.com", "C4:64:E3:0B:52:10"};
        configuration.edit("TRANS/SRV1/addr", values[0]);
        configuration.edit("BLUETOOTH/SENS1/macaddr", values[1]);
        const vlk::review::ReportChoice onePage{.isOnePage = true};
        const QString html = toHtml(configuration, reportOf(configuration, {}, {}, {}, onePage));
        const auto sheet = vlk::reportSheet(html, true, pdf);
        for (const QString& value : values) {
            const QTextBlock block = sheet->find(value).block();
            QCOMPARE(block.layout()->lineCount(), 1);
            const QRectF line = block.layout()->lineAt(0).naturalTextRect();
            QVERIFY(sheet->documentLayout()->blockBoundingRect(block).left() + line.right() <
                    sheet->pageSize().width());
        }
    }

    // Wherever the page ends, headings stand above the first line of what they
    // head.
    void headingsAreKept()
    {
        QBuffer file;
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QPdfWriter pdf(&file);
        const QString below = "<h2>Page</h2><h3>Group</h3><table><tr><td>caption</"
                              "td><td>1</td></tr></table>";
        QSet<int> pages;
        for (int lines = 20; lines < 45; ++lines) {
            const auto sheet = vlk::reportSheet(QString("<p>line</p>").repeated(lines) + below, false, pdf);
            const auto pageOf = [&](const QString& text) {
                const QTextBlock block = sheet->find(text).block();
                return static_cast<int>(sheet->documentLayout()->blockBoundingRect(block).top() /
                                        sheet->pageSize().height());
            };
            QCOMPARE(pageOf("Page"), pageOf("caption"));
            QCOMPARE(pageOf("Group"), pageOf("caption"));
            pages << pageOf("Page");
        }
        QCOMPARE(pages, QSet<int>({0, 1}));
    }
};

QTEST_MAIN(PresetsAndReportTest)
#include "tst_presets_and_report.moc"
