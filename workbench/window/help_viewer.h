#pragma once

// The help window: a browser over the help pages with back, forward, contents and a search over all of them.

#include "window/help_pages.h"
#include "window/key_texts.h"

#include <QDialog>
#include <QTextBrowser>

class QLabel;
class QLineEdit;
class QToolBar;

namespace workbench {

// Takes its pages from HelpPages, so that links and history work on page names.
class HelpBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    HelpBrowser(HelpPages pages, QString language, QWidget* parent);

    QVariant loadResource(int type, const QUrl& name) override;

    void setLanguage(const QString& language);
    // Goes to where the words stand next, on this page, on those behind it, and round to the place where it
    // is.
    bool findNext(const QString& words);

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
    void addSearch(QToolBar* bar);
    void findNext();

    HelpBrowser* browser_;
    QLineEdit* words_;
    QLabel* result_;
    KeyTexts texts_;
};

} // namespace workbench
