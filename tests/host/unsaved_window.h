#pragma once

// The window of the configuration over a scripted host whose folder keeps what is edited: opened from a file,
// from the tracker or new, edited, written, and what it offers.

#include "review/recovery.h"
#include "support/files.h"
#include "support/scripted_host.h"
#include "support/typing.h"
#include "support/window_parts.h"

#include <QtTest>
#include <QtWidgets>

#include <memory>

using vlk::Message;

inline void useFolder(ScriptedHost& host, const QString& folder)
{
    const vlk::Paths paths{{}, folder + '/', {}, {}};
    host.send(Message::SetPaths, &paths);
}

class UnsavedWindow : protected WindowParts
{
protected:
    void start()
    {
        QDir::setCurrent(folder_.path());
        host_.start();
    }
    // With a folder in which nothing is kept.
    void begin()
    {
        kept_ = std::make_unique<QTemporaryDir>();
        useFolder(host_, kept_->path());
        attach("1");
        open("file");
        window = ScriptedHost::window("VLK_Widget_Config");
    }
    void attach(const QString& number)
    {
        const vlk::ConnectInfo info{"R-7106", "firmware", number, {}, 0, 0};
        host_.send(Message::TrackerAttached, &info);
    }
    void open(const QString& source, bool full = true)
    {
        const QString path = source == "new" ? QString() : VLK_SOURCE "/fuzz/corpus/settings/factory.xml";
        host_.open(path, full, source == "file");
    }
    // Two settings that both windows have.
    void edit(bool full = true)
    {
        window = ScriptedHost::window("VLK_Widget_Config");
        auto* page = child<QWidget>(full ? "page_Full" : "page_Light");
        type(page->findChild<QSpinBox*>("GPRSSrv_spinBox_Port_Main"), "<All>5555<Tab>");
        type(page->findChild<QLineEdit*>("GPRSSrv_lineEdit_IP_DNS_Main"), "<All>10.0.0.1<Tab>");
        QCoreApplication::processEvents();
    }
    // It asks first.
    void toQuick() const
    {
        ScriptedHost::whenModal([](QWidget* box) { box->findChildren<QAbstractButton*>()[0]->click(); });
        press("pushButton_ConfigLight");
    }
    // What the button for the tracker hands over.
    QByteArray written(bool full = true)
    {
        press(full ? "pushButton_LoadToDevice" : "pushButton_Light_LoadToDevice");
        const QString path = host_.takeSent(Message::WriteConfiguration).value(0).text1;
        QByteArray content = readFile(path);
        QFile::remove(path);
        return content;
    }
    // What quick setup would remove or replace, in front of any offer.
    bool tellsRemoval() const
    {
        const auto* label = child<QLabel>("label_Unsaved");
        return label->isVisible() &&
               (label->text().startsWith("rev_435") || label->text().startsWith("rev_503"));
    }
    // Empty while nothing is offered.
    QString offer() const
    {
        if (tellsRemoval())
            press("label_Unsaved_Close");
        const auto* label = child<QLabel>("label_Unsaved");
        return label->isVisible() ? label->text().section(" (", 0, 0) : QString();
    }
    QStringList files() const
    {
        QStringList paths;
        for (const QFileInfo& file :
             QDir(kept_->filePath(".unsaved")).entryInfoList(QDir::Files | QDir::Hidden)) {
            if (file.suffix() != QLatin1String("lock"))
                paths << file.filePath();
        }
        return paths;
    }

    ScriptedHost host_;
    QTemporaryDir folder_;
    std::unique_ptr<QTemporaryDir> kept_;
};
