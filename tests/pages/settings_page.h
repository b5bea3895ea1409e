#pragma once

// One settings page for tests: what a file loads into it, and what it saves, seen by a reader that is not
// ours.

#include "support/device.h"
#include "support/files.h"
#include "support/window_parts.h"
#include "xml/xml_document.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QtXml>

#include <memory>

using Values = QMap<QString, QString>;       // "RULES/cnctType" to the text in the file
using Boxes = QVector<QPair<QString, bool>>; // what the user checks and unchecks, in order

template <class Page>
class SettingsPage : public WindowParts
{
public:
    explicit SettingsPage(const char* section) : section_(QString::fromLatin1(section)) {}

    void open()
    {
        device().initialize(nullptr);
        page_ = std::make_unique<Page>();
        window = page_.get();
    }
    Page& page() { return *page_; }

    template <class T = QWidget>
    T* get(const QString& name)
    {
        return child<T>(name);
    }
    QString textOf(const QString& name) { return get<QLineEdit>(name)->text(); }
    int indexOf(const QString& name) { return get<QComboBox>(name)->currentIndex(); }
    // Although the page itself is not on show.
    bool isOn(const QString& name) { return get(name)->isEnabledTo(window); }
    bool isChecked(const QString& name) { return get<QAbstractButton>(name)->isChecked(); }
    void check(const Boxes& boxes)
    {
        for (const auto& [name, on] : boxes)
            get<QAbstractButton>(name)->setChecked(on);
    }
    // Those of the widgets, named with blanks between them, that are not in this state.
    QStringList notEnabled(const QString& names, bool on)
    {
        QStringList wrong;
        for (const QString& name : names.split(' ', Qt::SkipEmptyParts)) {
            if (isOn(name) != on)
                wrong << name;
        }
        return wrong;
    }

    void load(const Values& values)
    {
        QDomDocument document;
        QDomNode section = document.appendChild(document.createElement("DEVICE"))
                               .appendChild(document.createElement(section_));
        for (auto value = values.begin(); value != values.end(); ++value) {
            const QString element = value.key().section('/', 0, 0);
            if (section.firstChildElement(element).isNull())
                section.appendChild(document.createElement(element));
            section.firstChildElement(element).setAttribute(value.key().section('/', 1), value.value());
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
        collect(document.documentElement().firstChildElement(section_), {}, &values);
        return values;
    }

    QString saved(const QString& key) { return save().value(key, "(missing)"); }
    // What of these values is not saved so.
    QStringList notSaved(const Values& expected)
    {
        const Values values = save();
        QStringList wrong;
        for (auto value = expected.begin(); value != expected.end(); ++value) {
            if (values.value(value.key()) != value.value())
                wrong << value.key() + " is " + values.value(value.key(), "(missing)");
        }
        return wrong;
    }

private:
    // Takes the attributes of the elements below this one, by their paths.
    static void collect(const QDomElement& above, const QString& path, Values* values)
    {
        for (QDomElement element = above.firstChildElement(); !element.isNull();
             element = element.nextSiblingElement()) {
            const QDomNamedNodeMap attributes = element.attributes();
            for (int i = 0; i < attributes.size(); ++i) {
                const QDomAttr attribute = attributes.item(i).toAttr();
                (*values)[path + element.tagName() + '/' + attribute.name()] = attribute.value();
            }
            collect(element, path + element.tagName() + '/', values);
        }
    }

    const QString section_;
    QTemporaryDir folder_;
    std::unique_ptr<Page> page_;
};

Q_DECLARE_METATYPE(Values)
