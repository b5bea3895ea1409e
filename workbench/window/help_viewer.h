#pragma once

// The help window: a browser over the help pages with back, forward and contents.

#include "window/help_pages.h"
#include "window/key_texts.h"

#include <QDialog>
#include <QTextBrowser>

namespace vlk {

// Takes its pages from HelpPages, so that links and history work on page names.
class HelpBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    HelpBrowser(HelpPages pages, QString language, QWidget* parent);

    QVariant loadResource(int type, const QUrl& name) override;

    void setLanguage(const QString& language);

protected:
    void changeEvent(QEvent* event) override;

private:
    void applyStyle();

    HelpPages pages_;
    QString language_;
};

class HelpViewer : public QDialog
{
    Q_OBJECT

public:
    HelpViewer(const HelpPages& pages, const QString& language, QWidget* parent);

    void showPage(const QString& page);
    void setLanguage(const QString& language);

private:
    HelpBrowser* browser_;
    KeyTexts texts_;
};

} // namespace vlk
