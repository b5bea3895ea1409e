#pragma once

// The Transfer page for tests: what a file loads into it, and what it saves, seen by a reader that is not
// ours.

#include "pages/form_config_transfer.h"
#include "support/device.h"
#include "support/files.h"
#include "support/window_parts.h"
#include "xml/xml_document.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QtXml>

using Values = QMap<QString, QString>; // "RULES/cnctType" to the text in the file

class TransferPage : public WindowParts
{
public:
    void open()
    {
        device().initialize(nullptr);
        page_ = std::make_unique<VLK_Form_Config_Transfer>();
        window = page_.get();
    }
    VLK_Form_Config_Transfer& page() { return *page_; }

    template <class T = QWidget>
    T* get(const char* name)
    {
        return child<T>(QString::fromLatin1(name));
    }
    QString textOf(const char* name) { return get<QLineEdit>(name)->text(); }
    int indexOf(const char* name) { return get<QComboBox>(name)->currentIndex(); }
    // Although the page itself is not on show.
    bool isOn(const char* name) { return get(name)->isEnabledTo(window); }

    void load(const Values& values)
    {
        QDomDocument document;
        QDomNode trans = document.appendChild(document.createElement("DEVICE"))
                             .appendChild(document.createElement("TRANS"));
        for (auto value = values.begin(); value != values.end(); ++value) {
            const QString element = value.key().section('/', 0, 0);
            if (trans.firstChildElement(element).isNull())
                trans.appendChild(document.createElement(element));
            trans.firstChildElement(element).setAttribute(value.key().section('/', 1), value.value());
        }
        vlk::XmlDocument in(writeFile(folder_.filePath("in.xml"), document.toByteArray()), "DEVICE");
        page_->loadFromXml(in.root());
    }

    Values save()
    {
        const QString path = folder_.filePath("out.xml");
        QFile::remove(path);
        {
            vlk::XmlDocument out(path, "DEVICE");
            page_->saveToXml(out.root());
            out.save();
        }
        QDomDocument document;
        if (!document.setContent(readFile(path)))
            return {};
        Values values;
        const QDomElement trans = document.documentElement().firstChildElement("TRANS");
        for (QDomElement group = trans.firstChildElement(); !group.isNull();
             group = group.nextSiblingElement()) {
            const QDomNamedNodeMap attributes = group.attributes();
            for (int i = 0; i < attributes.size(); ++i) {
                const QDomAttr attribute = attributes.item(i).toAttr();
                values[group.tagName() + '/' + attribute.name()] = attribute.value();
            }
        }
        return values;
    }

    QString saved(const char* key) { return save().value(QString::fromLatin1(key), "(missing)"); }
    QString filePath(const char* name) const { return folder_.filePath(name); }

private:
    QTemporaryDir folder_;
    std::unique_ptr<VLK_Form_Config_Transfer> page_;
};
