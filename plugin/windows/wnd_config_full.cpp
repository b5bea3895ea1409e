#include "windows/wnd_config_full.h"

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

void VLK_Wnd_Config_Full::hook3() {}

void VLK_Wnd_Config_Full::gotoInputLines() {}

void VLK_Wnd_Config_Full::gotoRs() {}

void VLK_Wnd_Config_Full::gotoBluetooth() {}

void VLK_Wnd_Config_Full::gotoAccel() {}

void VLK_Wnd_Config_Full::gotoAccelPlain() {}
