#pragma once

// The rows of the catalogue (field_catalogue.h): every value that a record can hold, in the order of its
// bytes. The number is the mask bit; rows with one number are a group, in the record all or none of them.
// Names are the element names of telemetry files, spelled as they always were.

#include "catalogue/element_row.h"

namespace vlk::catalogue {

using enum ValueType;

inline constexpr ElementRow kElementRows[] = {
    {0, u32, "NumPage"},              // record number
    {1, u16, "Code"},                 // event code
    {2, u32, "Time"},                 // event time, Unix seconds
    {3, u8, "State"},                 // device status bits
    {4, u8, "Module1"},               // functional module status 1 bits
    {5, u8, "Module2"},               // functional module status 2 bits
    {6, u8, "GSM"},                   // GSM signal level, 0 to 31; 99 and above: no level
    {7, u8, "StateNGauge"},           // bit 0 working, bit 1 fix valid, bits 2 to 7 satellites in use
    {8, u32, "LastTime"},             // time of the last valid fix, Unix seconds
    {9, i32, "Latitude"},             // latitude, units of 1/600000 degree, south negative
    {10, i32, "Longitude"},           // longitude, units of 1/600000 degree, west negative
    {11, i32, "Altitude"},            // altitude, units of 0.1 m
    {12, f32, "Speed"},               // speed, km/h
    {13, u16, "Course"},              // course, whole degrees
    {14, f32, "Run"},                 // total mileage, km
    {15, f32, "Way"},                 // length of the last path segment, km
    {16, u16, "AllSeconds"},          // interval over which the last segment was computed, seconds
    {17, u16, "SecondsLast"},         // time in which the last segment was travelled, seconds
    {18, u16, "Power"},               // main supply voltage, mV
    {19, u16, "Reserv"},              // backup supply voltage, mV
    {20, u16, "StateU_Ain1"},         // voltage of analog input 1, mV
    {21, u16, "StateU_Ain2"},         // voltage of analog input 2, mV
    {22, u16, "StateU_Ain3"},         // voltage of analog input 3, mV
    {23, u16, "StateU_Ain4"},         // voltage of analog input 4, mV
    {24, u16, "StateU_Ain5"},         // voltage of analog input 5, mV
    {25, u16, "StateU_Ain6"},         // voltage of analog input 6, mV
    {26, u16, "StateU_Ain7"},         // voltage of analog input 7, mV
    {27, u16, "StateU_Ain8"},         // voltage of analog input 8, mV
    {28, u8, "StateIn1"},             // discrete inputs 1 to 8, bit n is input n+1
    {29, u8, "StateIn2"},             // discrete inputs 9 to 16, bit n is input n+9
    {30, u8, "StateOut1"},            // outputs 1 to 8, bit n is output n+1
    {31, u8, "StateOut2"},            // outputs 9 to 16, bit n is output n+9
    {32, u32, "StateIn_Imp1"},        // pulse counter 1
    {33, u32, "StateIn_Imp2"},        // pulse counter 2
    {34, u16, "Frequency1"},          // frequency sensor 1, Hz
    {35, u16, "Frequency2"},          // frequency sensor 2, Hz
    {36, u32, "Motochas"},            // engine hours, total
    {37, u16, "LevelRS485_1"},        // level of RS-485 fuel sensor 1
    {38, u16, "LevelRS485_2"},        // level of RS-485 fuel sensor 2
    {39, u16, "LevelRS485_3"},        // level of RS-485 fuel sensor 3
    {40, u16, "LevelRS485_4"},        // level of RS-485 fuel sensor 4
    {41, u16, "LevelRS485_5"},        // level of RS-485 fuel sensor 5
    {42, u16, "LevelRS485_6"},        // level of RS-485 fuel sensor 6
    {43, u16, "LevelRS232"},          // level of the RS-232 fuel sensor
    {44, i8, "Temp1"},                // temperature sensor T1, deg C
    {45, i8, "Temp2"},                // temperature sensor T2, deg C
    {46, i8, "Temp3"},                // temperature sensor T3, deg C
    {47, i8, "Temp4"},                // temperature sensor T4, deg C
    {48, i8, "Temp5"},                // temperature sensor T5, deg C
    {49, i8, "Temp6"},                // temperature sensor T6, deg C
    {50, i8, "Temp7"},                // temperature sensor T7, deg C
    {51, i8, "Temp8"},                // temperature sensor T8, deg C
    {52, u16, "CAN_FuelLevel"},       // bit 15 set: percent in the low 15 bits; clear: 0.1 litre
    {53, f32, "CAN_FuelConsumption"}, // CAN total fuel consumption
    {54, u16, "CAN_EngineTurns"},     // CAN engine speed; 0xFFFF: none
    {55, i8, "CAN_Temp"},             // CAN coolant temperature, deg C; -128: none
    {56, f32, "CAN_FullRun"},         // CAN total mileage
    {57, u16, "CAN_AxleLoad_1"},      // CAN load on axle 1; 0xFFFF: none
    {58, u16, "CAN_AxleLoad_2"},      // CAN load on axle 2; 0xFFFF: none
    {59, u16, "CAN_AxleLoad_3"},      // CAN load on axle 3; 0xFFFF: none
    {60, u16, "CAN_AxleLoad_4"},      // CAN load on axle 4; 0xFFFF: none
    {61, u16, "CAN_AxleLoad_5"},      // CAN load on axle 5; 0xFFFF: none
    {62, u8, "CAN_PedalAccel"},       // CAN accelerator pedal position, percent; 255: none
    {63, u8, "CAN_PedalStop"},        // CAN brake pedal position, percent; 255: none
    {64, u8, "CAN_EngineLoad"},       // CAN engine load, percent; 255: none
    {65, u16, "CAN_LevelFiltr"},      // filtered; bit 15 set: percent in the low 7 bits; clear: 0.1 litre
    {66, u32, "CAN_EngineTime"},      // CAN engine running time, seconds
    {67, u16, "CAN_TimeTO"},          // CAN distance to service; 0xFFFF: none
    {68, u8, "CAN_Speed"},            // CAN speed; 255: none
    {69, u8, "NaviInfoGlonass"},      // satellites in use: GLONASS
    {69, u8, "NaviInfoGPS"},          // GPS
    {69, u8, "NaviInfoGalileo"},      // Galileo
    {69, u8, "NaviInfoCompass"},      // Compass
    {69, u8, "NaviInfoBeidou"},       // Beidou
    {69, u8, "NaviInfoDoris"},        // DORIS
    {69, u8, "NaviInfoIrnss"},        // IRNSS
    {69, u8, "NaviInfoQzss"},         // QZSS
    {70, u8, "NaviHDop"},             // HDOP, units of 0.1
    {70, u8, "NaviPDop"},             // PDOP, units of 0.1
    {71, u8, "NaviState"},            // as StateNGauge for the receiver; bit 0 fixed or float point
    {72, i64, "NaviLatitude"},        // latitude, units of 1/600000000 degree
    {72, i64, "NaviLongitude"},       // longitude, units of 1/600000000 degree
    {73, i32, "NaviAltitude"},        // altitude, units of 0.001 m
    {74, u16, "NaviCourse"},          // course, units of 0.01 degree
    {75, f32, "NaviSpeed"},           // speed, km/h
    {76, u32, "LbsCellID"},           // serving cell: CellID
    {76, u16, "LbsLac"},              // serving cell: LAC
    {76, u16, "LbsMcc"},              // serving cell: MCC
    {76, u16, "LbsMnc"},              // serving cell: MNC
    {76, i8, "LbsLevel"},             // serving cell: radio level, dBm
    {76, u32, "LbsCellID_1"},         // neighbour cell 1: CellID
    {76, u16, "LbsLac_1"},            // neighbour cell 1: LAC
    {76, u16, "LbsMcc_1"},            // neighbour cell 1: MCC
    {76, u16, "LbsMnc_1"},            // neighbour cell 1: MNC
    {76, i8, "LbsLevel_1"},           // neighbour cell 1: radio level, dBm
    {76, u32, "LbsCellID_2"},         // neighbour cell 2: CellID
    {76, u16, "LbsLac_2"},            // neighbour cell 2: LAC
    {76, u16, "LbsMcc_2"},            // neighbour cell 2: MCC
    {76, u16, "LbsMnc_2"},            // neighbour cell 2: MNC
    {76, i8, "LbsLevel_2"},           // neighbour cell 2: radio level, dBm
    {76, u32, "LbsTime"},             // time of the last LBS data, Unix seconds
    {77, i8, "TempRS485_1"},          // temperature of RS-485 fuel sensor 1, deg C
    {78, i8, "TempRS485_2"},          // temperature of RS-485 fuel sensor 2, deg C
    {79, i8, "TempRS485_3"},          // temperature of RS-485 fuel sensor 3, deg C
    {80, i8, "TempRS485_4"},          // temperature of RS-485 fuel sensor 4, deg C
    {81, i8, "TempRS485_5"},          // temperature of RS-485 fuel sensor 5, deg C
    {82, i8, "TempRS485_6"},          // temperature of RS-485 fuel sensor 6, deg C
    {83, u16, "LevelRS485_7"},        // level of RS-485 fuel sensor 7
    {83, i8, "TempRS485_7"},          // temperature of RS-485 fuel sensor 7, deg C
    {84, u16, "LevelRS485_8"},        // level of RS-485 fuel sensor 8
    {84, i8, "TempRS485_8"},          // temperature of RS-485 fuel sensor 8, deg C
    {85, u16, "LevelRS485_9"},        // level of RS-485 fuel sensor 9
    {85, i8, "TempRS485_9"},          // temperature of RS-485 fuel sensor 9, deg C
    {86, u16, "LevelRS485_10"},       // level of RS-485 fuel sensor 10
    {86, i8, "TempRS485_10"},         // temperature of RS-485 fuel sensor 10, deg C
    {87, u16, "LevelRS485_11"},       // level of RS-485 fuel sensor 11
    {87, i8, "TempRS485_11"},         // temperature of RS-485 fuel sensor 11, deg C
    {88, u16, "LevelRS485_12"},       // level of RS-485 fuel sensor 12
    {88, i8, "TempRS485_12"},         // temperature of RS-485 fuel sensor 12, deg C
    {89, u16, "LevelRS485_13"},       // level of RS-485 fuel sensor 13
    {89, i8, "TempRS485_13"},         // temperature of RS-485 fuel sensor 13, deg C
    {90, u16, "LevelRS485_14"},       // level of RS-485 fuel sensor 14
    {90, i8, "TempRS485_14"},         // temperature of RS-485 fuel sensor 14, deg C
    {91, u16, "LevelRS485_15"},       // level of RS-485 fuel sensor 15
    {91, i8, "TempRS485_15"},         // temperature of RS-485 fuel sensor 15, deg C
    {92, u16, "LevelRS485_16"},       // level of RS-485 fuel sensor 16
    {92, i8, "TempRS485_16"},         // temperature of RS-485 fuel sensor 16, deg C
    {93, u8, "TiresNum1"},            // tyre sensor 1: tyre number
    {93, u8, "TiresPres1"},           // pressure, units of 0.1
    {93, i8, "TiresTemp1"},           // deg C; 0x81: none
    {93, u8, "TiresNum2"},            // tyre sensor 2: tyre number
    {93, u8, "TiresPres2"},           // pressure, units of 0.1
    {93, i8, "TiresTemp2"},           // deg C; 0x81: none
    {94, u8, "TiresNum3"},            // tyre sensor 3: tyre number
    {94, u8, "TiresPres3"},           // pressure, units of 0.1
    {94, i8, "TiresTemp3"},           // deg C; 0x81: none
    {94, u8, "TiresNum4"},            // tyre sensor 4: tyre number
    {94, u8, "TiresPres4"},           // pressure, units of 0.1
    {94, i8, "TiresTemp4"},           // deg C; 0x81: none
    {94, u8, "TiresNum5"},            // tyre sensor 5: tyre number
    {94, u8, "TiresPres5"},           // pressure, units of 0.1
    {94, i8, "TiresTemp5"},           // deg C; 0x81: none
    {94, u8, "TiresNum6"},            // tyre sensor 6: tyre number
    {94, u8, "TiresPres6"},           // pressure, units of 0.1
    {94, i8, "TiresTemp6"},           // deg C; 0x81: none
    {95, u8, "TiresNum7"},            // tyre sensor 7: tyre number
    {95, u8, "TiresPres7"},           // pressure, units of 0.1
    {95, i8, "TiresTemp7"},           // deg C; 0x81: none
    {95, u8, "TiresNum8"},            // tyre sensor 8: tyre number
    {95, u8, "TiresPres8"},           // pressure, units of 0.1
    {95, i8, "TiresTemp8"},           // deg C; 0x81: none
    {95, u8, "TiresNum9"},            // tyre sensor 9: tyre number
    {95, u8, "TiresPres9"},           // pressure, units of 0.1
    {95, i8, "TiresTemp9"},           // deg C; 0x81: none
    {95, u8, "TiresNum10"},           // tyre sensor 10: tyre number
    {95, u8, "TiresPres10"},          // pressure, units of 0.1
    {95, i8, "TiresTemp10"},          // deg C; 0x81: none
    {95, u8, "TiresNum11"},           // tyre sensor 11: tyre number
    {95, u8, "TiresPres11"},          // pressure, units of 0.1
    {95, i8, "TiresTemp11"},          // deg C; 0x81: none
    {95, u8, "TiresNum12"},           // tyre sensor 12: tyre number
    {95, u8, "TiresPres12"},          // pressure, units of 0.1
    {95, i8, "TiresTemp12"},          // deg C; 0x81: none
    {95, u8, "TiresNum13"},           // tyre sensor 13: tyre number
    {95, u8, "TiresPres13"},          // pressure, units of 0.1
    {95, i8, "TiresTemp13"},          // deg C; 0x81: none
    {95, u8, "TiresNum14"},           // tyre sensor 14: tyre number
    {95, u8, "TiresPres14"},          // pressure, units of 0.1
    {95, i8, "TiresTemp14"},          // deg C; 0x81: none
    {96, u8, "TiresNum15"},           // tyre sensor 15: tyre number
    {96, u8, "TiresPres15"},          // pressure, units of 0.1
    {96, i8, "TiresTemp15"},          // deg C; 0x81: none
    {96, u8, "TiresNum16"},           // tyre sensor 16: tyre number
    {96, u8, "TiresPres16"},          // pressure, units of 0.1
    {96, i8, "TiresTemp16"},          // deg C; 0x81: none
    {96, u8, "TiresNum17"},           // tyre sensor 17: tyre number
    {96, u8, "TiresPres17"},          // pressure, units of 0.1
    {96, i8, "TiresTemp17"},          // deg C; 0x81: none
    {96, u8, "TiresNum18"},           // tyre sensor 18: tyre number
    {96, u8, "TiresPres18"},          // pressure, units of 0.1
    {96, i8, "TiresTemp18"},          // deg C; 0x81: none
    {96, u8, "TiresNum19"},           // tyre sensor 19: tyre number
    {96, u8, "TiresPres19"},          // pressure, units of 0.1
    {96, i8, "TiresTemp19"},          // deg C; 0x81: none
    {96, u8, "TiresNum20"},           // tyre sensor 20: tyre number
    {96, u8, "TiresPres20"},          // pressure, units of 0.1
    {96, i8, "TiresTemp20"},          // deg C; 0x81: none
    {96, u8, "TiresNum21"},           // tyre sensor 21: tyre number
    {96, u8, "TiresPres21"},          // pressure, units of 0.1
    {96, i8, "TiresTemp21"},          // deg C; 0x81: none
    {96, u8, "TiresNum22"},           // tyre sensor 22: tyre number
    {96, u8, "TiresPres22"},          // pressure, units of 0.1
    {96, i8, "TiresTemp22"},          // deg C; 0x81: none
    {96, u8, "TiresNum23"},           // tyre sensor 23: tyre number
    {96, u8, "TiresPres23"},          // pressure, units of 0.1
    {96, i8, "TiresTemp23"},          // deg C; 0x81: none
    {96, u8, "TiresNum24"},           // tyre sensor 24: tyre number
    {96, u8, "TiresPres24"},          // pressure, units of 0.1
    {96, i8, "TiresTemp24"},          // deg C; 0x81: none
    {96, u8, "TiresNum25"},           // tyre sensor 25: tyre number
    {96, u8, "TiresPres25"},          // pressure, units of 0.1
    {96, i8, "TiresTemp25"},          // deg C; 0x81: none
    {96, u8, "TiresNum26"},           // tyre sensor 26: tyre number
    {96, u8, "TiresPres26"},          // pressure, units of 0.1
    {96, i8, "TiresTemp26"},          // deg C; 0x81: none
    {96, u8, "TiresNum27"},           // tyre sensor 27: tyre number
    {96, u8, "TiresPres27"},          // pressure, units of 0.1
    {96, i8, "TiresTemp27"},          // deg C; 0x81: none
    {96, u8, "TiresNum28"},           // tyre sensor 28: tyre number
    {96, u8, "TiresPres28"},          // pressure, units of 0.1
    {96, i8, "TiresTemp28"},          // deg C; 0x81: none
    {96, u8, "TiresNum29"},           // tyre sensor 29: tyre number
    {96, u8, "TiresPres29"},          // pressure, units of 0.1
    {96, i8, "TiresTemp29"},          // deg C; 0x81: none
    {96, u8, "TiresNum30"},           // tyre sensor 30: tyre number
    {96, u8, "TiresPres30"},          // pressure, units of 0.1
    {96, i8, "TiresTemp30"},          // deg C; 0x81: none
    {97, u8, "TahoState"},            // tachograph: four two-bit states of driver 1 and driver 2
    {98, u8, "TahoMode"},             // tachograph mode
    {99, u16, "TahoFlags"},           // tachograph flags
    {100, u8, "TahoSpeed"},           // tachograph speed, km/h
    {101, u32, "TahoOdometer"},       // tachograph odometer, units of 0.1; 0xFFFFFFFF: none
    {102, u32, "TahoTime"},           // tachograph time, Unix seconds
    {103, u8, "DispCur"},             // driver display: current driver state
    {104, u32, "DispLastIndex"},      // driver display: index of the last message
    {105, u16, "AccelDelta"},         // time increment from the previous record, units of 0.01 s
    {106, i16, "AccelLinearX"},       // linear acceleration X, units of 0.001; -32768: none
    {106, i16, "AccelLinearY"},       // linear acceleration Y, units of 0.001; -32768: none
    {106, i16, "AccelLinearZ"},       // linear acceleration Z, units of 0.001; -32768: none
    {107, u16, "AccelModule"},        // time above the threshold, units of 0.01 s; 65535: beyond the range
    {108, i16, "AccelAngularPlus"},   // maximum acceleration, units of 0.001; -32768: none
    {108, i16, "AccelAngularMinus"},  // maximum braking, units of 0.001; -32768: none
    {108, i16, "AccelAngularCorner"}, // maximum lateral acceleration, units of 0.001; -32768: none
    {109, u8, "Passager_1"},          // passenger counter 1, door 1; 255: none
    {109, u8, "Passager_2"},          // passenger counter 2, door 1; 255: none
    {110, u8, "Passager_3"},          // passenger counter 3, door 2; 255: none
    {110, u8, "Passager_4"},          // passenger counter 4, door 2; 255: none
    {111, u8, "Passager_5"},          // passenger counter 5, door 3; 255: none
    {111, u8, "Passager_6"},          // passenger counter 6, door 3; 255: none
    {112, u8, "Passager_7"},          // passenger counter 7, door 4; 255: none
    {112, u8, "Passager_8"},          // passenger counter 8, door 4; 255: none
    {113, u8, "Passager_9"},          // passenger counter 9, door 5; 255: none
    {113, u8, "Passager_10"},         // passenger counter 10, door 5; 255: none
    {114, u8, "Passager_11"},         // passenger counter 11, door 6; 255: none
    {114, u8, "Passager_12"},         // passenger counter 12, door 6; 255: none
    {115, u8, "Passager_13"},         // passenger counter 13, door 7; 255: none
    {115, u8, "Passager_14"},         // passenger counter 14, door 7; 255: none
    {116, u8, "Passager_15"},         // passenger counter 15, door 8; 255: none
    {116, u8, "Passager_16"},         // passenger counter 16, door 8; 255: none
    {117, u8, "AinfState"},           // announcer status bits
    {118, u16, "AinfGeozoneID"},      // announcer: ID of the last geofence
    {119, u16, "AinfStopID"},         // announcer: ID of the last stop
    {120, u16, "AinfRouteID"},        // announcer: ID of the current route
    {121, u8, "CameraState"},         // camera status bits
    {122, u8, "State2"},              // device status 2 bits
    {123, u8, "Module3"},             // functional module status 3 bits
    {124, u8, "StateCnct"},           // connection status bits
    {125, u8, "StateIn3"},            // discrete inputs 17 to 24, bit n is input n+17
    {126, u32, "StateIn_Imp3"},       // pulse counter 3
    {127, u32, "StateIn_Imp4"},       // pulse counter 4
    {128, u32, "StateIn_Imp5"},       // pulse counter 5
    {129, u32, "StateIn_Imp6"},       // pulse counter 6
    {130, u32, "StateIn_Imp7"},       // pulse counter 7
    {131, u32, "StateIn_Imp8"},       // pulse counter 8
    {132, u16, "Frequency3"},         // frequency sensor 3, Hz
    {133, u16, "Frequency4"},         // frequency sensor 4, Hz
    {134, u16, "Frequency5"},         // frequency sensor 5, Hz
    {135, u16, "Frequency6"},         // frequency sensor 6, Hz
    {136, u16, "Frequency7"},         // frequency sensor 7, Hz
    {137, u16, "Frequency8"},         // frequency sensor 8, Hz
    {138, u8, "VAccelState"},         // virtual sensors SH1 to SH4, bits 0 to 3
    {139, u8, "VAccelVertical"},      // tilt from the local vertical by sensor SH4, units of 0.25 degree
    {140, i8, "VAccelLineTang"},      // tilt from the plumb line (pitch), whole degrees
    {140, i8, "VAccelLineRoll"},      // tilt from the plumb line (roll), units of 1.5 degree
    {141, u8, "VAccelAxelsX"},        // external tilt sensor, deviation X
    {141, u8, "VAccelAxelsY"},        // external tilt sensor, deviation Y
    {141, u8, "VAccelAxelsZ"},        // external tilt sensor, deviation Z
    {142, i16, "EcoDrvAccelMax"},     // maximum vertical acceleration over the period, units of 0.001
    {143, u8, "EcoDrvSpeedMax"},      // maximum speed over the period, km/h
    {144, u8, "EcoDrvSpeedState"},    // speed thresholds 1 to 6, one bit each
    {145, u8, "EcoDrvAccel1"},        // bits 0 to 3 acceleration thresholds 1 to 4, bits 4 to 7 braking
    {145, u8, "EcoDrvAccel2"},        // bits 0 to 3 left turn thresholds, bits 4 to 7 right turn
    {145, u8, "EcoDrvAccel3"},        // vertical thresholds 1 to 4 in bits 0 to 3
    {146, u16, "RS485Freq1"},         // frequency of RS-485 sensor 1, Hz
    {147, u16, "RS485Freq2"},         // frequency of RS-485 sensor 2, Hz
    {148, u16, "RS485Freq3"},         // frequency of RS-485 sensor 3, Hz
    {149, u16, "RS485Freq4"},         // frequency of RS-485 sensor 4, Hz
    {150, u16, "RS485Freq5"},         // frequency of RS-485 sensor 5, Hz
    {151, u16, "RS485Freq6"},         // frequency of RS-485 sensor 6, Hz
    {152, u16, "RS485Freq7"},         // frequency of RS-485 sensor 7, Hz
    {153, u16, "RS485Freq8"},         // frequency of RS-485 sensor 8, Hz
    {154, u16, "RS485Freq9"},         // frequency of RS-485 sensor 9, Hz
    {155, u16, "RS485Freq10"},        // frequency of RS-485 sensor 10, Hz
    {156, u16, "RS485Freq11"},        // frequency of RS-485 sensor 11, Hz
    {157, u16, "RS485Freq12"},        // frequency of RS-485 sensor 12, Hz
    {158, u16, "RS485Freq13"},        // frequency of RS-485 sensor 13, Hz
    {159, u16, "RS485Freq14"},        // frequency of RS-485 sensor 14, Hz
    {160, u16, "RS485Freq15"},        // frequency of RS-485 sensor 15, Hz
    {161, u16, "RS485Freq16"},        // frequency of RS-485 sensor 16, Hz
    {162, i16, "HPrecisionTemp1"},    // temperature sensor 1, units of 0.05 deg C; -32768: none
    {163, i16, "HPrecisionTemp2"},    // temperature sensor 2, units of 0.05 deg C; -32768: none
    {164, i16, "HPrecisionTemp3"},    // temperature sensor 3, units of 0.05 deg C; -32768: none
    {165, i16, "HPrecisionTemp4"},    // temperature sensor 4, units of 0.05 deg C; -32768: none
    {166, u8, "HPrecisionHumidity1"}, // humidity sensor 1, units of 0.5%; 255: none
    {167, u8, "HPrecisionHumidity2"}, // humidity sensor 2, units of 0.5%; 255: none
    {168, u8, "HPrecisionHumidity3"}, // humidity sensor 3, units of 0.5%; 255: none
    {169, u8, "HPrecisionHumidity4"}, // humidity sensor 4, units of 0.5%; 255: none
    {170, u16, "FfsState"},           // fuel flow sensor status nibbles
    {171, u32, "FfsError"},           // fuel flow sensor error word
    {172, u32, "FfsFuel"},            // fuel flow sensor: total fuel, units of 0.01 litre
    {173, u32, "FfsFuelTrip"},        // fuel flow sensor: trip fuel, units of 0.01 litre
    {174, i16, "FfsSpeed"},           // fuel flow sensor: flow, units of 0.1 litre per hour
    {175, u32, "FfsSubmisVolume"},    // supply chamber: volume, units of 0.01 litre
    {176, i16, "FfsSubmisSpeed"},     // supply chamber: flow, units of 0.1 litre per hour
    {177, i16, "FfsSubmisTemp"},      // supply chamber: temperature, units of 0.1 degree
    {178, u32, "FfsReversVolume"},    // return chamber: volume, units of 0.01 litre
    {179, i16, "FfsReversSpeed"},     // return chamber: flow, units of 0.1 litre per hour
    {180, i16, "FfsReversTemp"},      // return chamber: temperature, units of 0.1 degree
    {181, u8, "RefrState1"},          // bit 0 working, bit 1 mode, bits 2 to 4 vendor
    {181, u8, "RefrState2"},          // operating mode code
    {182, i16, "RefrTemp1"},          // refrigerator zone 1 temperature, units of 0.01 degree
    {183, i16, "RefrTemp2"},          // refrigerator zone 2 temperature, units of 0.01 degree
    {184, i16, "RefrTemp3"},          // refrigerator zone 3 temperature, units of 0.01 degree
    {185, i16, "RefrSetTemp1"},       // refrigerator zone 1 set temperature, units of 0.01 degree
    {186, i16, "RefrSetTemp2"},       // refrigerator zone 2 set temperature, units of 0.01 degree
    {187, i16, "RefrSetTemp3"},       // refrigerator zone 3 set temperature, units of 0.01 degree
    {188, i16, "RefrTempAir"},        // refrigerator outside air temperature, units of 0.01 degree
    {189, i16, "RefrTempWater"},      // refrigerator coolant temperature, units of 0.01 degree
    {190, u16, "RefrTension"},        // refrigerator voltage
    {191, u16, "RefrIntensity"},      // refrigerator current
    {192, u32, "RefrPowerEngine"},    // running time on the engine, units of 0.01 h; 0xFFFFFFFF: none
    {193, u32, "RefrPowerNetwork"},   // running time on the mains, units of 0.01 h; 0xFFFFFFFF: none
    {194, u16, "RefrErrorCount"},     // refrigerator: number of errors
    {194, u16, "RefrErrorCode1"},     // refrigerator error code 1
    {195, u16, "RefrErrorCode2"},     // refrigerator error code 2
    {195, u16, "RefrErrorCode3"},     // refrigerator error code 3
    {196, u16, "RefrErrorCode4"},     // refrigerator error code 4
    {196, u16, "RefrErrorCode5"},     // refrigerator error code 5
    {196, u16, "RefrErrorCode6"},     // refrigerator error code 6
    {197, u8, "RefrEngineMode"},      // refrigerator engine mode
    {197, u16, "RefrEngineTurns"},    // refrigerator engine speed, revolutions per minute
    {198, u8, "RefrCompressor"},      // refrigerator compressor state code
    {199, u16, "GeozoneInfo"},        // presence in geofences 1 to 10, bit n is geofence n+1
    {200, u16, "CAN3State"},          // CAN state bits
    {201, u8, "CAN3Event"},           // CAN event code
    {202, u32, "CAN3Crash"},          // CAN crash bits
    {203, u8, "CAN3FailureLamp"},     // CAN failure lamp bits
    {203, u32, "CAN3FailureCode"},    // CAN failure code
    {204, u32, "MotochasLoadOn"},     // engine hours under load
    {205, u32, "MotochasLoadOff"},    // engine hours without load
    {206, u8, "User1Byte_1"},         // user parameters, raw bytes
    {207, u8, "User1Byte_2"},         // number 2
    {208, u8, "User1Byte_3"},         // number 3
    {209, u8, "User1Byte_4"},         // number 4
    {210, u8, "User1Byte_5"},         // number 5
    {211, u8, "User1Byte_6"},         // number 6
    {212, u8, "User1Byte_7"},         // number 7
    {213, u8, "User1Byte_8"},         // number 8
    {214, u8, "User1Byte_9"},         // number 9
    {215, u8, "User1Byte_10"},        // number 10
    {216, u8, "User1Byte_11"},        // number 11
    {217, u8, "User1Byte_12"},        // number 12
    {218, u8, "User1Byte_13"},        // number 13
    {219, u8, "User1Byte_14"},        // number 14
    {220, u8, "User1Byte_15"},        // number 15
    {221, u8, "User1Byte_16"},        // number 16
    {222, u16, "User2Byte_1"},        // user parameters, raw bytes
    {223, u16, "User2Byte_2"},        // number 2
    {224, u16, "User2Byte_3"},        // number 3
    {225, u16, "User2Byte_4"},        // number 4
    {226, u16, "User2Byte_5"},        // number 5
    {227, u16, "User2Byte_6"},        // number 6
    {228, u16, "User2Byte_7"},        // number 7
    {229, u16, "User2Byte_8"},        // number 8
    {230, u16, "User2Byte_9"},        // number 9
    {231, u16, "User2Byte_10"},       // number 10
    {232, u16, "User2Byte_11"},       // number 11
    {233, u16, "User2Byte_12"},       // number 12
    {234, u16, "User2Byte_13"},       // number 13
    {235, u16, "User2Byte_14"},       // number 14
    {236, u16, "User2Byte_15"},       // number 15
    {237, u32, "User4Byte_1"},        // user parameters, raw bytes
    {238, u32, "User4Byte_2"},        // number 2
    {239, u32, "User4Byte_3"},        // number 3
    {240, u32, "User4Byte_4"},        // number 4
    {241, u32, "User4Byte_5"},        // number 5
    {242, u32, "User4Byte_6"},        // number 6
    {243, u32, "User4Byte_7"},        // number 7
    {244, u32, "User4Byte_8"},        // number 8
    {245, u32, "User4Byte_9"},        // number 9
    {246, u32, "User4Byte_10"},       // number 10
    {247, u32, "User4Byte_11"},       // number 11
    {248, u32, "User4Byte_12"},       // number 12
    {249, u32, "User4Byte_13"},       // number 13
    {250, u32, "User4Byte_14"},       // number 14
    {251, u32, "User4Byte_15"},       // number 15
    {252, u64, "User8Byte_1"},        // user parameters, raw bytes
    {253, u64, "User8Byte_2"},        // number 2
    {254, u64, "User8Byte_3"},        // number 3
};

} // namespace vlk::catalogue
