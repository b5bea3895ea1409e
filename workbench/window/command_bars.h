#pragma once

// The menus and the tool bar of the main window, over its commands.

#include "window/commands.h"
#include "window/key_texts.h"

#include <QObject>

class QActionGroup;
class QComboBox;
class QMainWindow;
class QMenu;

namespace workbench {

class Languages;
class Settings;

class CommandBars : public QObject
{
    Q_OBJECT

public:
    CommandBars(QMainWindow* window, Commands& commands, Settings& settings, const Languages& languages,
                QMenu* recentFiles);

    // Another language is out of reach while a configuration is open, and the commands say so.
    void setLanguagesOffered(bool offered);
    void retranslate() { texts_.apply(); }

Q_SIGNALS:
    void languageChosen(const QString& code);

private:
    void buildMenus(QMenu* recentFiles);
    void buildReviewChoice(QMenu* menu);
    void buildLanguages(QMenu* menu);
    void buildAppearances(QMenu* menu);
    void buildToolBar();
    // Which window a configuration opens in.
    QComboBox* buildWindowChoice();

    QMainWindow* window_;
    Commands& commands_;
    Settings& settings_;
    const Languages& languages_;
    KeyTexts texts_;
    QActionGroup* languageChoice_;
};

} // namespace workbench
