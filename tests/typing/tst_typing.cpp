// What a person types into fields: keys, both decimal signs, each end of typing, in both languages.

#include "support/brackets.h"
#include "support/data_table.h"
#include "support/typing.h"
#include "typing/field_mark.h"
#include "typing/file_error.h"
#include "typing/join_fields.h"
#include "typing/typed_entry.h"

#include <QClipboard>
#include <QDateTimeEdit>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>
#include <QtTest>

#include <cerrno>

class TypingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        window_ = std::make_unique<QDialog>();
        auto* column = new QVBoxLayout(window_.get());
        whole_ = add<QSpinBox>(column);
        real_ = add<QDoubleSpinBox>(column);
        date_ = add<QDateTimeEdit>(column);
        line_ = add<QLineEdit>(column);
        date_->setDisplayFormat("dd.MM.yyyy HH:mm:ss");
        date_->setTimeSpec(Qt::UTC);
        date_->setDateTime({{2026, 11, 20}, {8, 29, 44}, Qt::UTC});
        auto* button = new QPushButton(window_.get());
        button->setDefault(true);
        column->addWidget(button);
        connect(button, &QPushButton::clicked, this, [this] { ++pressed_; });
        pressed_ = 0;
        vlk::joinFields(window_.get());
        window_->show();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    }

    // Whatever stands beside them stays.
    void errorsOfFilesAreWorded()
    {
        const QString told =
            vlk::fileErrorText(qt_error_string(EACCES) + "; lost: " + qt_error_string(ENOSPC));
        QVERIFY(told.startsWith("tmiw_271 ") && told.contains("; lost: tmiw_272 "));
        QCOMPARE(vlk::fileErrorText("something else"), QString("something else"));
    }

    // "meanwhile" is what the box is worth before the last named key.
    void numbers_data()
    {
        DataTable<QString, int, int, int, QString, double, double, QString>(
            {"language", "decimals", "least", "most", "keys", "meanwhile", "value", "mark"})
            .row("half typed", "en", 0, -55, 125, "<All>30", 20, 30, "")
            .row("by Tab", "ru", 0, 1, 180, "<All>175<Tab>", 20, 175, "")
            .row("by Enter", "ru", 0, 1, 180, "<All>175<Enter>", 20, 175, "")
            .row("point in Russian", "ru", 1, 0, 99, "<All>2.7<Tab>", 20, 2.7, "")
            .row("comma in English", "en", 1, 0, 99, "<All>5,5<Enter>", 20, 5.5, "")
            .row("point in English", "en", 2, 0, 99, "<All>37.50<Tab>", 20, 37.5, "")
            .row("no figure before the sign", "en", 1, 0, 99, "<All>,5<Tab>", 20, 0.5, "")
            .row("two signs", "en", 1, 0, 9999, "<All>1.234,5<Tab>", 20, 20, "typed_number")
            .row("group of thousands", "en", 0, 0, 9999, "<All>1,234<Tab>", 20, 20, "typed_whole")
            .row("blank between thousands", "ru", 1, 0, 9999, "<All>1 234,5<Tab>", 20, 1234.5, "")
            .row("no-break blanks", "ru", 0, 0, 9'999'999, "<All>1\u00a0234\u202f567<Tab>", 20, 1'234'567, "")
            .row("blank elsewhere", "ru", 0, 0, 9999, "<All>12 34<Tab>", 20, 20, "typed_number")
            .row("fraction in a whole one", "ru", 0, 0, 99, "<All>2,5<Tab>", 20, 20, "typed_whole")
            .row("too many decimals", "ru", 1, 0, 99, "<All>2,55<Tab>", 20, 20, "typed_decimals")
            .row("zeros behind", "ru", 1, 0, 99, "<All>2,500<Tab>", 20, 2.5, "")
            .row("minus from 0 up", "en", 0, 0, 99, "<All>-5<Tab>", 20, 20, "typed_negative")
            .row("minus", "en", 1, -50, 120, "<All>-12.5<Tab>", 20, -12.5, "")
            .row("letters", "en", 0, 0, 99, "<All>1O<Enter>", 20, 20, "typed_number")
            .row("nothing", "en", 0, 0, 99, "<All><Back><Tab>", 20, 20, "typed_empty")
            .row("sign alone", "en", 1, -9, 99, "<All>-<Tab>", 20, 20, "typed_number")
            .row("above", "en", 0, 1, 1000, "<All>4096<Tab>", 20, 1000, "typed_range")
            .row("far above", "en", 0, 1, 1000, "<All>99999999999999999999<Tab>", 20, 1000, "typed_range")
            .row("below", "en", 0, 15, 900, "<All>4<Enter>", 20, 15, "typed_range")
            .row("far below", "ru", 2, -50, 120, "<All>-250,75<Tab>", 20, -50, "typed_range")
            .row("given up", "en", 0, 0, 99, "<All>55<Esc>", 20, 20, "")
            .row("refused, then given up", "en", 0, 0, 99, "<All>5.5<Esc>", 20, 20, "")
            .row("stepped from", "en", 0, 0, 99, "<All>55<Up>", 20, 56, "")
            .row("behind the unit", "en", 0, 0, 999, "<End>5<Tab>", 20, 205, "")
            .row("before it", "en", 0, 0, 999, "<Home>5<Tab>", 20, 520, "");
    }
    void numbers()
    {
        QFETCH(QString, language);
        QFETCH(int, decimals);
        QFETCH(int, least);
        QFETCH(int, most);
        QFETCH(QString, keys);
        QFETCH(double, meanwhile);
        window_->setLocale(QLocale(language));
        whole_->setRange(least, most);
        real_->setRange(least, most);
        real_->setDecimals(decimals);
        whole_->setSuffix(" km/h");
        real_->setSuffix(" km/h");
        whole_->setValue(20);
        real_->setValue(20);
        QAbstractSpinBox* box = decimals ? static_cast<QAbstractSpinBox*>(real_) : whole_;
        const auto value = [&] { return decimals ? real_->value() : whole_->value(); };
        box->setFocus();
        const QString last = keys.endsWith('>') ? keys.mid(keys.lastIndexOf('<')) : QString();
        type(box, keys.chopped(last.size()));
        QCOMPARE(value(), meanwhile);
        type(box, last);
        if (last.isEmpty())
            vlk::TypedEntry::finishIn(window_.get());
        QTEST(value(), "value");
        QVERIFY(box->text().endsWith(" km/h"));
        QTEST(box->toolTip().section(' ', 0, 0), "mark");
        QCOMPARE(box->accessibleDescription(), box->toolTip());
        QVERIFY(window_->isVisible() && pressed_ == 0);
        type(box, "<Esc>"); // nothing is left to give up
        QVERIFY(!window_->isVisible());
    }

    void otherFormsOfNumbers_data()
    {
        DataTable<int, QString, QString, double, QString>({"base", "clipboard", "keys", "value", "mark"})
            .row("plain", 10, "12.5", "<All><Paste>", 12.5, "")
            .row("other sign", 10, "12,5", "<All><Paste>", 12.5, "")
            .row("with its unit", 10, " 12,5 V\n", "<All><Paste>", 12.5, "")
            .row("minus sign", 10, QString::fromUtf8("\u22123"), "<All><Paste>", -3, "")
            .row("groups", 10, "1 234", "<All><Paste>", 1234, "")
            .row("a word", 10, "12 l", "<All><Paste>", 16, "typed_number")
            .row("hexadecimal", 16, "", "<All>1f", 31, "")
            .row("hexadecimal, too large", 16, "", "<All>100", 255, "typed_range")
            .row("hexadecimal, no figure", 16, "", "<All>1g", 16, "typed_number")
            .row("hexadecimal, minus", 16, "", "<All>-1", 16, "typed_number");
    }
    void otherFormsOfNumbers()
    {
        QFETCH(int, base);
        QFETCH(QString, clipboard);
        QFETCH(QString, keys);
        whole_->setDisplayIntegerBase(16);
        whole_->setRange(0, 255);
        whole_->setValue(16);
        real_->setRange(-50, 9999);
        real_->setSuffix(" V");
        real_->setValue(16);
        QApplication::clipboard()->setText(clipboard);
        QAbstractSpinBox* box = base == 16 ? static_cast<QAbstractSpinBox*>(whole_) : real_;
        type(box, keys + "<Tab>");
        QTEST(base == 16 ? whole_->value() : real_->value(), "value");
        QTEST(box->toolTip().section(' ', 0, 0), "mark");
    }

    void markGoesWithTheNextTyping()
    {
        auto* caption = new QLabel("Speed", window_.get());
        caption->setBuddy(whole_);
        whole_->setToolTip("own");
        type(whole_, "<All>1.5");
        QVERIFY(whole_->toolTip().startsWith("typed_whole") && whole_->toolTip().endsWith("\nown"));
        type(whole_, "<Tab>");
        QCOMPARE(vlk::TypedEntry::of(whole_)->takeNews().section(' ', 0, 0), QString("typed_whole"));
        QCOMPARE(vlk::TypedEntry::of(whole_)->takeNews(), QString());
        type(whole_, "<All>1");
        QCOMPARE(whole_->toolTip(), QString("own"));
        type(whole_, "<Tab>");
        type(whole_, "<All>500<Tab>");
        QVERIFY(whole_->toolTip().startsWith("typed_range"));
        whole_->setValue(7);
        QCOMPARE(whole_->toolTip(), QString("own"));
    }

    void numbersFollowTheLanguage()
    {
        real_->setValue(2.5);
        for (const char* language : {"ru", "en"}) {
            window_->setLocale(QLocale(language));
            QCOMPARE(real_->text(), QString(language) == "ru" ? QString("2,50") : QString("2.50"));
        }
    }

    void dates_data()
    {
        const QString before = "20.11.2026 08:29:44";
        DataTable<QString, QString, QString, QString>({"clipboard", "keys", "value", "mark"})
            .row("over all", "", "<All>18.11.2026 12:00:00<Tab>", "18.11.2026 12:00:00", "")
            .row("ended by Enter", "", "<All>01.02.2025 00:00:01<Enter>", "01.02.2025 00:00:01", "")
            .row("from the first section on", "", "18.12.2025 12:00:00<Tab>", "18.12.2025 12:00:00", "")
            .row("no seconds", "", "<All>18.11.2026 12:00<Tab>", "18.11.2026 12:00:00", "")
            .row("no time", "", "<All>18.11.2026<Tab>", "18.11.2026 08:29:44", "")
            .row("figures alone", "", "<All>18112026120005<Tab>", "18.11.2026 12:00:05", "")
            .row("figures of a day", "", "<All>18112026<Tab>", "18.11.2026 08:29:44", "")
            .row("figures of no day", "", "<All>31022026<Tab>", before, "typed_date")
            .row("corrected", "", "<All>18.11.2026 12:00:09<Back>0<Tab>", "18.11.2026 12:00:00", "")
            .row("given up", "", "<All>18.11.2026 12:00:00<Esc>", before, "")
            .row("no such day", "", "<All>31.02.2026 12:00:00<Tab>", before, "typed_date")
            .row("half of it", "", "<All>18.11<Enter>", before, "typed_date")
            .row("one section", "", "18<Tab>", "18.11.2026 08:29:44", "")
            .row("short sections", "", "8.1.<Tab>", "08.01.2026 08:29:44", "")
            .row("the last day of a longer month", "", "31.12<Tab>", "31.12.2026 08:29:44", "")
            .row("a day that the month lacks", "", "31<Enter>", before, "typed_date")
            .row("year of two figures", "", "18.12.26 <Tab>", before, "typed_date")
            .row("stepped from", "", "18<Up>", "19.11.2026 08:29:44", "")
            .row("pasted", "18.11.2026 12:00:00", "<Paste>", "18.11.2026 12:00:00", "")
            .row("pasted over all", " 18.11.2026   12:00:00\n", "<All><Paste>", "18.11.2026 12:00:00", "")
            .row("pasted, sortable", "2026-11-18 12:00:00", "<Paste>", "18.11.2026 12:00:00", "")
            .row("pasted, no date", "12 l", "<Paste>", before, "typed_date")
            .row("pasted nothing", "", "<Paste>", before, "typed_date");
    }
    void dates()
    {
        QFETCH(QString, clipboard);
        QFETCH(QString, keys);
        QApplication::clipboard()->setText(clipboard);
        type(date_, keys);
        QTEST(date_->text(), "value");
        QTEST(date_->dateTime().toString("dd.MM.yyyy HH:mm:ss"), "value");
        QCOMPARE(date_->dateTime().timeSpec(), Qt::UTC);
        QTEST(date_->toolTip().section(' ', 0, 0), "mark");
        QVERIFY(window_->isVisible() && pressed_ == 0);
        type(date_, "<All>03.04.2026 05:06:07<Tab>");
        QCOMPARE(date_->text() + date_->toolTip(), QString("03.04.2026 05:06:07"));
    }

    // Tab behind the day leads to the time, behind a whole moment to the next field; a section that was full
    // has led on already. What follows goes where the focus is.
    void tabsInDates_data()
    {
        DataTable<QString, QString, QString>({"keys", "further", "value"})
            .row("day over all", "<All>03.11.2026<Tab>", "10:15<Enter>", "03.11.2026 10:15:44")
            .row("day in figures over all", "<All>03112026<Tab>", "10:15<Enter>", "03.11.2026 10:15:44")
            .row("day by sections", "03.11.2026<Tab>", "10:15<Enter>", "03.11.2026 10:15:44")
            .row("colon by Shift", "<Tab><Tab><Tab>10<Shift>:15", "<Enter>", "20.11.2026 10:15:44")
            .row("short sections", "3<Tab>1<Tab>", "2025<Enter>", "03.01.2025 08:29:44")
            .row("full sections", "03<Tab>12<Tab>2025<Tab>10<Tab>", "15<Tab>16<Enter>", "03.12.2025 10:15:16")
            .row("back to the month", "03.12.<Backtab>", "04<Enter>", "03.04.2026 08:29:44")
            .row("minutes over all", "<All>03.11.2026 10:15<Tab>", "", "03.11.2026 10:15:00")
            .row("moment over all", "<All>03.11.2026 10:15:16<Tab>", "", "03.11.2026 10:15:16")
            .row("moment by sections", "03.11.2026 10:15:16<Tab>", "", "03.11.2026 10:15:16")
            .row("over all and back", "<All>03.11.2026 10:15:16<Backtab>", "", "03.11.2026 10:15:16")
            .row("refused", "<All>31.02.2026<Tab>", "", "20.11.2026 08:29:44");
    }
    void tabsInDates()
    {
        QFETCH(QString, keys);
        QFETCH(QString, further);
        type(date_, keys);
        const QWidget* next = date_;
        if (further.isEmpty())
            next = keys.endsWith("<Tab>") ? static_cast<QWidget*>(line_) : real_;
        QCOMPARE(QApplication::focusWidget(), next);
        if (!further.isEmpty())
            type(date_, further);
        QTEST(date_->dateTime().toString("dd.MM.yyyy HH:mm:ss"), "value");
    }

    // What is told of a value is not told of the one that is being typed.
    void marksOfTheValueBefore()
    {
        vlk::markField(whole_, vlk::MarkReason::Advice, vlk::Mark::Invalid, "no port");
        QCOMPARE(whole_->toolTip(), QString("no port"));
        type(whole_, "<All>2");
        QVERIFY(whole_->toolTip().isEmpty());
        type(whole_, "x");
        QVERIFY(whole_->toolTip().startsWith("typed_number"));
        type(whole_, "<Esc>");
        QCOMPARE(whole_->toolTip(), QString("no port"));
    }

    void texts_data()
    {
        DataTable<QString, QString, QString, QString>({"pattern", "keys", "text", "mark"})
            .row("fits", "^\\S{0,6}$", "abc<Tab>", "oldabc", "")
            .row("too long", "^\\S{0,6}$", "abcd<Tab>", "oldabc", "typed_long 6")
            .row("blank", "^\\S{0,6}$", "a b", "oldab", "typed_sign")
            .row("blank, and left", "^\\S{0,6}$", "a b<Tab>", "oldab", "typed_sign")
            .row("blank alone, and left", "^\\S{0,6}$", " <Tab>", "old", "")
            .row("blank into the empty line, and left", "^\\S{0,6}$", "<All><Back> <Tab>", "", "")
            .row("blank in too long a text, and left", "^\\S{0,6}$", "ab cd<Tab>", "oldabc", "typed_long 6")
            .row("blank, corrected", "^\\S{0,6}$", "a b<Back>c<Tab>", "oldac", "")
            .row("blank into the empty line, then a good text", "^\\S{0,6}$", "<All><Back> abc<Tab>", "abc",
                 "")
            .row("pasted into the empty line and too long", "", "<All><Back><Paste><Tab>", "secret w",
                 "typed_long 8")
            .row("blank in a new text", "^\\S{0,6}$", "<All><Back>a b", "ab", "typed_sign")
            .row("blank at the end", "^\\S{0,6}$", "a ", "olda", "typed_sign")
            .row("pasted and too long", "^\\S{0,6}$", "<Paste><Tab>", "old", "typed_long 6")
            .row("limited by the line", "", "abcdefgh<Tab>", "oldabcde", "typed_long 8")
            .row("given up", "", "abc<Esc>", "old", "")
            .row("too long and given up", "", "abcdefgh<Esc>", "old", "");
    }
    void texts()
    {
        QFETCH(QString, pattern);
        QFETCH(QString, keys);
        QFETCH(QString, mark);
        if (pattern.isEmpty())
            line_->setMaxLength(8);
        else
            line_->setValidator(new QRegularExpressionValidator(QRegularExpression(pattern), line_));
        line_->setText("old");
        line_->setFocus();
        line_->deselect();
        QApplication::clipboard()->setText("secret word");
        type(line_, keys);
        QTEST(line_->text(), "text");
        QCOMPARE(line_->toolTip().left(mark.isEmpty() ? -1 : mark.size()), mark);
        QVERIFY(window_->isVisible());
        type(line_, "<Enter>");
        QTest::keyClick(line_, 'b', Qt::AltModifier);
        QTEST(line_->text(), "text");
        QVERIFY(window_->isVisible() && pressed_ == 0);
        type(line_, "<Esc>");
        QVERIFY(!window_->isVisible());
    }

    void pasted_data()
    {
        DataTable<QString, QString, QString>({"clipboard", "text", "mark"})
            .row("blank inside", "12 34", "", "typed_sign")
            .row("blank behind", "1234 ", "1234", "")
            .row("lines around", "\r\n 1234\n", "1234", "")
            .row("blank behind, and too long", "123456789 ", "", "typed_long 8");
    }
    void pasted()
    {
        QFETCH(QString, clipboard);
        QFETCH(QString, mark);
        line_->setValidator(new QRegularExpressionValidator(QRegularExpression("^\\d{0,8}$"), line_));
        line_->clear();
        QApplication::clipboard()->setText(clipboard);
        type(line_, "<Paste><Tab>");
        QTEST(line_->text(), "text");
        QCOMPARE(line_->toolTip().left(mark.isEmpty() ? -1 : mark.size()), mark);
        line_->clear();
        QContextMenuEvent menu(QContextMenuEvent::Keyboard, {});
        QApplication::sendEvent(line_, &menu);
        QApplication::activePopupWidget()->close();
        line_->paste();
        QApplication::processEvents();
        QTEST(line_->text(), "text");
        QCOMPARE(line_->toolTip().left(mark.isEmpty() ? -1 : mark.size()), mark);
    }

    // Blanks are meant within a text.
    void pastedWithBlanks()
    {
        QApplication::clipboard()->setText(" ab ");
        type(line_, "<All><Paste>");
        QCOMPARE(line_->text(), QString("ab"));
        type(line_, "<Home><Paste>");
        QCOMPARE(line_->text(), QString(" ab ab"));
    }

    void beginningOfALongText()
    {
        line_->setFixedWidth(60);
        type(line_, QString(40, 'W'));
        QCOMPARE(line_->cursorPosition(), 40);
        type(line_, "<Tab>");
        QCOMPARE(line_->cursorPosition(), 0);
    }

    // What was left out counts until the line is entered again and edited.
    void refusedOnAnEarlierVisit()
    {
        line_->setValidator(new QRegularExpressionValidator(QRegularExpression("^\\S{0,9}$"), line_));
        line_->setFocus();
        QApplication::clipboard()->setText("a b");
        type(line_, "<Paste><Tab>");
        line_->setFocus();
        line_->deselect();
        QVERIFY(line_->toolTip().startsWith("typed_sign"));
        type(line_, "abc");
        QVERIFY(line_->toolTip().isEmpty());
        type(line_, " d");
        QVERIFY(line_->toolTip().startsWith("typed_sign"));
        QCOMPARE(line_->text(), QString("abcd"));
    }

    // Wherever it is clicked.
    void masks_data()
    {
        DataTable<QString, QString, QString>({"there", "keys", "text"})
            .row("typed", "", "c464E30B5210", "c4:64:E3:0B:52:10")
            .row("behind a key", "", "<End>c464", "c4:64::::")
            .row("more", "c4:6", "4E3", "c4:64:E3:::")
            .row("full", "c4:64:E3:0B:52:10", "1", "c4:64:E3:0B:52:10")
            .row("all chosen", "c4:64:E3:0B:52:10", "<All>1", "1:::::")
            .row("pasted", "", "<Paste>", "C4:64:E3:0B:52:10");
    }
    void masks()
    {
        QFETCH(QString, keys);
        line_->setInputMask("HH:HH:HH:HH:HH:HH");
        for (const QString address : {"C464E30B5210", "C4:64:E3:0B:52:10"}) {
            QFETCH(QString, there);
            line_->setText(there);
            whole_->setFocus();
            QApplication::clipboard()->setText(address);
            QTest::mouseClick(line_, Qt::LeftButton, {}, {line_->width() - 5, line_->height() / 2});
            type(line_, keys);
            QTEST(line_->text(), "text");
        }
    }

private:
    template <class Field>
    Field* add(QVBoxLayout* column)
    {
        auto* field = new Field(window_.get());
        column->addWidget(field);
        return field;
    }

    // Texts that begin with their key.
    const TextsAs keys_{[](const QString& key) { return key + QStringLiteral(" %1 %2 %3 %4"); }};
    std::unique_ptr<QDialog> window_;
    QSpinBox* whole_ = nullptr;
    QDoubleSpinBox* real_ = nullptr;
    QDateTimeEdit* date_ = nullptr;
    QLineEdit* line_ = nullptr;
    int pressed_ = 0;
};

QTEST_MAIN(TypingTest)
#include "tst_typing.moc"
