#include "peripherals/form_config_rs_param.h"

#include <utility>

void VLK_Form_Config_RS_Param::tellOffers(const QList<vlk::UserParam>& offers)
{
    const QList<vlk::UserParam> before = std::exchange(told_, offers);
    for (const vlk::UserParam& param : before) {
        if (!offers.contains(param))
            Q_EMIT signal_UserParam_Del(param.code, param.name, param.third, param.bytes);
    }
    for (const vlk::UserParam& param : offers) {
        if (!before.contains(param))
            Q_EMIT signal_UserParam_Add(param.code, param.name, param.third, param.bytes);
    }
}
