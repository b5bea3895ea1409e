#pragma once

// The text dialog: a title above a read-only field of HTML, for help and information texts. Modal for the
// whole application. However it is closed, its texts are cleared, so that the next opening starts empty.

#include <QDialog>

#include <memory>

namespace Ui {
class VLK_Designer_Form_Param_About;
}

class VLK_Form_Param_About : public QDialog
{
    Q_OBJECT

public:
    explicit VLK_Form_Param_About(QWidget* parent = nullptr);
    ~VLK_Form_Param_About() override;

    void setTitle(const QString& title);
    void setHtml(const QString& html);

    void retranslate();

protected:
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private Q_SLOTS:
    void slot_pressed_Btn_Ok();

private:
    void clearTexts();

    std::unique_ptr<Ui::VLK_Designer_Form_Param_About> ui_;
};
