#include "windows/wnd_config_full.h"

VLK_Wnd_Config_Full* vlkConfigFull = nullptr;

VLK_Wnd_Config_Full::VLK_Wnd_Config_Full(QWidget* parent) : QWidget(parent)
{
    resize(400, 300);
}

QString VLK_Wnd_Config_Full::userParamCode(const QString& /*text*/)
{
    return {};
}

QString VLK_Wnd_Config_Full::userParamText(const QString& /*code*/)
{
    return {};
}
