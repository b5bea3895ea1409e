#include "windows/binder/page_settings.h"

#include "document/values_document.h"
#include "windows/input_guard.h"
#include "xml/xml_section.h"

#include <QCoreApplication>

namespace vlk {

PageSettings::PageSettings(const SettingsTable& table, const char* title)
    : titleKey_(title), values_(table), binder_(std::make_unique<Binder>(values_))
{
    connect(binder_.get(), &Binder::changed, this, &PageSettings::changed);
}

PageSettings::~PageSettings() = default;

void PageSettings::bind(std::initializer_list<QWidget*> forms)
{
    for (QWidget* form : forms)
        binder_->addForm(form);
    binder_->bind();
}

void PageSettings::bind(QWidget* page, const std::vector<QWidget*>& numbered)
{
    for (std::size_t i = 0; i < numbered.size(); ++i)
        binder_->addForm(numbered[i], static_cast<int>(i) + 1);
    bind({page});
}

void PageSettings::join(QWidget* form)
{
    // The page was guarded before the form was there.
    guardInputs(form);
    binder_->join(form);
}

void PageSettings::showAll()
{
    binder_->show();
    Q_EMIT shown();
}

void PageSettings::showOthers()
{
    binder_->forget();
    showAll();
}

void PageSettings::setDefaults()
{
    values_.reset();
    showOthers();
}

void PageSettings::load(CXmlSection* root)
{
    if (!root)
        return;
    readFrom(*root, values_);
    showOthers();
}

void PageSettings::save(CXmlSection* root)
{
    if (!root)
        return;
    binder_->finishTyping();
    writeTo(*root, values_);
}

void PageSettings::putBack(const std::vector<QString>& held)
{
    if (held == values_.held())
        return;
    binder_->putBack(held);
    Q_EMIT shown();
}

void PageSettings::retranslate()
{
    title_ = titleKey_ ? QCoreApplication::translate("vlk", titleKey_) : QString();
    binder_->dress();
    showAll();
}

void PageSettings::edit(const QString& path, const QString& value)
{
    const int row = rowAt(path);
    Q_ASSERT(row >= 0);
    binder_->set(row, value);
}

} // namespace vlk
