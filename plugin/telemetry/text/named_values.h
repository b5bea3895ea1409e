#pragma once

// The words of values that are numbers of something: modes, vendors, states.

#include "telemetry/text/rule.h"

namespace vlk::names {

inline constexpr NamedValue kOperatingMode[] = {
    {0, "tmizta_005"}, {1, "tmizta_006"}, {2, "tmizta_007"}, {3, "tmizta_008"}};

inline constexpr NamedValue kJamming[] = {
    {0, "wrd_002"}, {1, "tmizta_026"}, {2, "tmizta_027"}, {3, "tmizta_009"}};

inline constexpr NamedValue kComplexEvent[] = {
    {0, "tmizta_364"}, {1, "tmizta_365"}, {2, "tmizta_366"}, {4, "tmizta_367"}, {5, "tmizta_368"}};

inline constexpr NamedValue kConnection[] = {
    {1, "tmizta_363"}, {2, "GPRS (2G)"}, {3, "WiFi"}, {4, "LTE (4G)"}, {5, "WCDMA (3G)"}};

inline constexpr NamedValue kDriverState[] = {
    {1, "tmizta_055"},  {2, "tmizta_056"},  {3, "tmizta_057"},  {4, "tmizta_058"},
    {5, "tmizta_059"},  {6, "tmizta_060"},  {7, "tmizta_061"},  {8, "tmizta_062"},
    {9, "tmizta_063"},  {10, "tmizta_064"}, {11, "tmizta_036"}, {12, "tmizta_065"},
    {13, "tmizta_066"}, {14, "tmizta_067"}, {15, "tmizta_068"}, {16, "tmizta_069"}};

inline constexpr NamedValue kCanEvent[] = {{0, "tmizta_113"}, {1, "tmizta_114"}, {2, "tmizta_115"},
                                           {3, "tmizta_116"}, {4, "tmizta_117"}, {5, "tmizta_118"},
                                           {6, "tmizta_119"}, {7, "tmizta_120"}};

inline constexpr NamedValue kFlowMode[] = {{0, "tmizta_093"}, {1, "tmizta_094"}, {2, "tmizta_095"},
                                           {3, "tmizta_096"}, {4, "tmizta_097"}, {5, "tmizta_098"}};

inline constexpr NamedValue kTachographActivity[] = {
    {0, "tmizta_036"}, {1, "tmizta_037"}, {2, "tmizta_038"}, {3, "tmizta_039"}};

inline constexpr NamedValue kTachographCard[] = {
    {0, "tmizta_040"}, {1, "tmizta_041"}, {2, "tmizta_042"}, {3, "tmizta_043"}};

inline constexpr NamedValue kTachographMode[] = {{0, "tmizta_014"}, {1, "tmizta_044"}, {2, "tmizta_045"},
                                                 {3, "tmizta_046"}, {4, "tmizta_047"}, {5, "tmizta_048"}};

inline constexpr NamedValue kTimeGroup[] = {
    {0, "tmizta_049"},         {1, "tmizta_050"},         {2, "tmizta_051"},        {3, {"tmizta_052", " 1"}},
    {4, {"tmizta_053", " 1"}}, {5, {"tmizta_052", " 2"}}, {6, {"tmizta_053", " 2"}}};

inline constexpr NamedValue kRefrigeratorVendor[] = {{0, "tmizta_102"},         {1, "tmizta_103"},
                                                     {2, "Carrier Standard32"}, {3, "Zanotti"},
                                                     {4, "ThermalMaster"},      {5, "Carrier NDP33LN6FB"}};

inline constexpr NamedValue kRefrigeratorMode[] = {{0, "tmizta_073"}, {1, "tmizta_013"},
                                                   {2, "tmizta_104"}, {3, "tmizta_105"},
                                                   {4, "tmizta_106"}, {129, 170, "tmizta_073"}};

// The unit's own words.
inline constexpr NamedValue kRefrigeratorVendorMode[] = {
    {129, "INVAL"},
    {130, "COOL"},
    {131, "NULL"},
    {132, "HEAT"},
    {133, "DFRST"},
    {134, "SHTDN"},
    {135, "LKCOL"},
    {136, "FACOL"},
    {137, "FANUL"},
    {138, "PULUP"},
    {139, "PULDN"},
    {140, "STABL"},
    {141, "PMPDN"},
    {142, "OVLSH"},
    {143, "DSABL"},
    {144, "LPTRP"},
    {145, "SPTRP"},
    {146, "NORML"},
    {147, "PWROF"},
    {148, "WSTRT"},
    {149, "RACTL"},
    {150, "DACTL"},
    {151, "FACTL"},
    {152, "DSANP"},
    {153, "FACHI"},
    {154, "FACLO"},
    {155, "COOLH"},
    {156, "DSCHK"},
    {157, "RRACL"},
    {158, "OTCTL"},
    {159, "SLEEP"},
    {160, "EVAC"},
    {161, "SERVICE"},
    {162, "RLYBD"},
    {163, "TEMP CTL"},
    {164, "ENGSTRT"},
    {165, "MOTSTRT"},
    {166, "EM FLASH"},
    {167, "NO ZONE"},
    {168, "Countdown Logging Mode"},
    {169, "Conservative Logging Mode"},
    {170, "Profile Upload Mode"},
};

inline constexpr NamedValue kRefrigeratorEngine[] = {
    {0, "tmizta_073"}, {1, "tmizta_107"}, {2, "tmizta_108"}, {3, "tmizta_109"}, {4, "tmizta_110"}};

inline constexpr NamedValue kCompressor[] = {
    {0, "tmizta_073"}, {1, "tmizta_111"}, {2, "tmizta_112"}, {129, 156, "tmizta_073"}};

inline constexpr NamedValue kCompressorVendor[] = {
    {0, 2, "tmizta_073"},
    {129, 130, "Diesel, Cycle-Sentry"},
    {131, 132, "Diesel, Continuous"},
    {133, 134, "Electric, Cycle-Sentry"},
    {135, 136, "Electric, Continuous"},
    {137, 138, "Diesel, Cycle-Sentry"},
    {139, 140, "Diesel, Continuous"},
    {141, 142, "Electric, Cycle-Sentry"},
    {143, 144, "Electric, Continuous"},
    {145, 146, "Diesel, Cycle-Sentry"},
    {147, 148, "Diesel, Continuous"},
    {149, 150, "Electric, Cycle-Sentry"},
    {151, 152, "Electric, Continuous"},
    {153, 154, "Diesel, Continuous"},
    {155, 156, "Electric, Continuous"},
};

} // namespace vlk::names
