#pragma once

// The window of records, as a host sees it: files in, widgets out; what a person types is typed.

#include "sample_pages.h"
#include "support/scripted_host.h"
#include "support/window_parts.h"
#include "telemetry/files/telemetry_file.h"

#include <QtTest>
#include <QtWidgets>

namespace vlk {

inline TelemetryPages drive()
{
    TelemetryPages pages;
    for (int i = 0; i < 40; ++i)
        pages.push_back(recordOf({{"NumPage", static_cast<quint64>(1000 + i)},
                                  {"Code", static_cast<quint64>(i == 7 || i == 30 ? 35 : 2)},
                                  {"Time", static_cast<quint64>(1738400400 + 60 * i)},
                                  {"Power", static_cast<quint64>(12000 + 100 * i)},
                                  {"StateIn1", static_cast<quint64>(i % 2)},
                                  {"Latitude", 33900000},
                                  {"Longitude", static_cast<quint32>(-300001)},
                                  {"Temp1", 128}}));
    return pages;
}

// A test of it begins with start(). Texts are their keys, numbers those of the C locale.
class RecordsWindow : protected WindowParts
{
protected:
    void start()
    {
        QLocale::setDefault(QLocale::c());
        host_.start();
        host_.onSend = [this](Message message, void* p1, void* p2) {
            if (message != Message::RequestEventText)
                return;
            ++eventQuestions_;
            if (const auto code = vlk::asValue(p1); code != 0)
                *static_cast<QString*>(p2) = QStringLiteral("event %1").arg(code);
        };
    }

    void open(const QString& path)
    {
        const std::int32_t table = 1;
        host_.send(Message::ShowStoredFile, &path, &table);
    }
    void show(const TelemetryPages& pages)
    {
        TelemetryOrigin origin;
        origin.titles.inputs[0] = "Door";
        origin.titles.temperatures[0] = "Cabin";
        origin.titles.userTypes[0] = "s";
        const QString path = folder_.filePath("telemetry.xml");
        QVERIFY(saveTelemetryFile(path, TelemetryForm::Xml, storeOf(pages), origin));
        open(path);
        window = ScriptedHost::window("VLK_Widget_Tmi_Table");
        if (firstSize_.isEmpty())
            firstSize_ = window->size();
        table_ = child<QTableView>("tableWidget");
        window->activateWindow();
        QApplication::setActiveWindow(window);
        QVERIFY(QTest::qWaitForWindowActive(window));
        table_->setFocus();
    }
    void type(const char* name, const QString& typed)
    {
        auto* line = child<QLineEdit>(name);
        line->setFocus();
        line->selectAll();
        QTest::keyClicks(line, typed);
    }
    // To whom a key goes.
    void pressInFilter(Qt::Key key) const
    {
        QTest::keyClick(popup() ? static_cast<QWidget*>(popup()) : child<QLineEdit>("lineEdit_Filter"), key);
    }
    static QAbstractItemView* popup()
    {
        return qobject_cast<QAbstractItemView*>(QApplication::activePopupWidget());
    }

    // By a part of its head, or of the key of it.
    int column(const QString& name) const
    {
        static const QHash<QString, QString> parts{{"NumPage", "tmizta_123"},
                                                   {"Code", "tmizta_124"},
                                                   {"Time", "tmizta_125,"},
                                                   {"Power", "tmizta_158"},
                                                   {"Reserv", "tmizta_159"},
                                                   {"Latitude", "tmizta_149"},
                                                   {"Longitude", "tmizta_150"},
                                                   {"Way", "tmizta_155"},
                                                   {"O1", "O1"},
                                                   {"IN1", "Door (IN1)"},
                                                   {"T1", QString::fromUtf8("Cabin (Т1)")},
                                                   {"User", "tmizta_355"},
                                                   {"Packet", "tmizta_359"}};
        const QAbstractItemModel* model = table_->model();
        for (int column = 0; column < model->columnCount(); ++column) {
            if (model->headerData(column, Qt::Horizontal).toString().startsWith(parts.value(name)))
                return column;
        }
        return -1;
    }
    QModelIndex cell(int row, const QString& name) const { return table_->model()->index(row, column(name)); }
    QStringList cells(int row, const QStringList& names) const
    {
        QStringList texts;
        for (const QString& name : names)
            texts << cell(row, name).data().toString();
        return texts;
    }
    QStringList numbers() const
    {
        QStringList texts;
        for (int row = 0; row < table_->model()->rowCount(); ++row)
            texts << cell(row, "NumPage").data().toString();
        return texts;
    }
    bool isShown(const char* name) const
    {
        return column(name) >= 0 && !table_->isColumnHidden(column(name));
    }
    QStringList shownHeads() const
    {
        QStringList heads;
        const QHeaderView* header = table_->horizontalHeader();
        for (int place = 0; place < header->count(); ++place) {
            const int column = header->logicalIndex(place);
            if (!header->isSectionHidden(column))
                heads << table_->model()->headerData(column, Qt::Horizontal).toString();
        }
        return heads;
    }

    static QAction* actionIn(QMenu* menu, const QString& text)
    {
        for (QAction* action : menu->actions()) {
            if (action->text().startsWith(text))
                return action;
        }
        qFatal("no %s in the menu", qPrintable(text));
    }
    // In the menu of columns, or in that of a group.
    QAction* menuAction(const char* group, const char* text) const
    {
        QMenu* menu = child<QPushButton>("pushButton_Columns")->menu();
        Q_EMIT menu->aboutToShow();
        return actionIn(group ? actionIn(menu, group)->menu() : menu, text);
    }
    // In the menu of the current cell.
    void choose(const char* text) const
    {
        QTimer::singleShot(0, [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            menu->setActiveAction(actionIn(menu, text));
            QTest::keyClick(menu, Qt::Key_Return);
        });
        QContextMenuEvent asked(QContextMenuEvent::Keyboard, {});
        QApplication::sendEvent(table_, &asked);
    }

    ScriptedHost host_;
    QTemporaryDir folder_;
    QTableView* table_ = nullptr;
    int eventQuestions_ = 0;
    QSize firstSize_;
};

} // namespace vlk
