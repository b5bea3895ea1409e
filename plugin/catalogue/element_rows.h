#pragma once

// The rows of the catalogue (field_catalogue.h): every value that a record can hold, in the order of its
// bytes. The number is the mask bit; rows with one number are a group, in the record all or none of them.
// Names are the element names of telemetry files, spelled as they always were.

#include "catalogue/element_row.h"

namespace vlk::catalogue {

using enum ValueType;
using enum Unit;

// clang-format off
inline constexpr ElementRow kElementRows[] = {
    {0,   U32, "NumPage"},                                                   // record number
    {1,   U16, "Code"},                                                      // event code
    {2,   U32, "Time",                in(UnixSeconds)},                      // event time
    {3,   U8,  "State"},                                                     // device status bits
    {4,   U8,  "Module1"},                                                   // functional module status 1 bits
    {5,   U8,  "Module2"},                                                   // functional module status 2 bits
    {6,   U8,  "GSM",                 in(Percent).times(3.22).none(99)},     // GSM signal level, 0 to 31
    {7,   U8,  "StateNGauge"},                                               // bit 0 working, bit 1 fix valid, bits 2 to 7 satellites in use
    {8,   U32, "LastTime",            in(UnixSeconds)},                      // time of the last valid fix
    {9,   I32, "Latitude",            in(Degree).per(600'000)},              // latitude, south negative
    {10,  I32, "Longitude",           in(Degree).per(600'000)},              // longitude, west negative
    {11,  I32, "Altitude",            in(Metre).per(10)},                    // altitude
    {12,  F32, "Speed",               in(KilometrePerHour)},                 // speed
    {13,  U16, "Course",              in(Degree)},                           // course
    {14,  F32, "Run",                 in(Kilometre)},                        // total mileage
    {15,  F32, "Way",                 in(Kilometre)},                        // length of the last path segment
    {16,  U16, "AllSeconds",          in(Second)},                           // interval over which the last segment was computed
    {17,  U16, "SecondsLast",         in(Second)},                           // time in which the last segment was travelled
    {18,  U16, "Power",               in(Volt).per(1000)},                   // main supply voltage
    {19,  U16, "Reserv",              in(Volt).per(1000)},                   // backup supply voltage
    {20,  U16, "StateU_Ain1",         in(Volt).per(1000)},                   // voltage of analog input 1
    {21,  U16, "StateU_Ain2",         in(Volt).per(1000)},                   // voltage of analog input 2
    {22,  U16, "StateU_Ain3",         in(Volt).per(1000)},                   // voltage of analog input 3
    {23,  U16, "StateU_Ain4",         in(Volt).per(1000)},                   // voltage of analog input 4
    {24,  U16, "StateU_Ain5",         in(Volt).per(1000)},                   // voltage of analog input 5
    {25,  U16, "StateU_Ain6",         in(Volt).per(1000)},                   // voltage of analog input 6
    {26,  U16, "StateU_Ain7",         in(Volt).per(1000)},                   // voltage of analog input 7
    {27,  U16, "StateU_Ain8",         in(Volt).per(1000)},                   // voltage of analog input 8
    {28,  U8,  "StateIn1"},                                                  // discrete inputs 1 to 8, bit n is input n+1
    {29,  U8,  "StateIn2"},                                                  // discrete inputs 9 to 16, bit n is input n+9
    {30,  U8,  "StateOut1"},                                                 // outputs 1 to 8, bit n is output n+1
    {31,  U8,  "StateOut2"},                                                 // outputs 9 to 16, bit n is output n+9
    {32,  U32, "StateIn_Imp1"},                                              // pulse counter 1
    {33,  U32, "StateIn_Imp2"},                                              // pulse counter 2
    {34,  U16, "Frequency1",          in(Hertz)},                            // frequency sensor 1
    {35,  U16, "Frequency2",          in(Hertz)},                            // frequency sensor 2
    {36,  U32, "Motochas"},                                                  // engine hours, total
    {37,  U16, "LevelRS485_1"},                                              // level of RS-485 fuel sensor 1
    {38,  U16, "LevelRS485_2"},                                              // level of RS-485 fuel sensor 2
    {39,  U16, "LevelRS485_3"},                                              // level of RS-485 fuel sensor 3
    {40,  U16, "LevelRS485_4"},                                              // level of RS-485 fuel sensor 4
    {41,  U16, "LevelRS485_5"},                                              // level of RS-485 fuel sensor 5
    {42,  U16, "LevelRS485_6"},                                              // level of RS-485 fuel sensor 6
    {43,  U16, "LevelRS232"},                                                // level of the RS-232 fuel sensor
    {44,  I8,  "Temp1",               in(Celsius).none(-128)},               // temperature sensor T1
    {45,  I8,  "Temp2",               in(Celsius).none(-128)},               // temperature sensor T2
    {46,  I8,  "Temp3",               in(Celsius).none(-128)},               // temperature sensor T3
    {47,  I8,  "Temp4",               in(Celsius).none(-128)},               // temperature sensor T4
    {48,  I8,  "Temp5",               in(Celsius).none(-128)},               // temperature sensor T5
    {49,  I8,  "Temp6",               in(Celsius).none(-128)},               // temperature sensor T6
    {50,  I8,  "Temp7",               in(Celsius).none(-128)},               // temperature sensor T7
    {51,  I8,  "Temp8",               in(Celsius).none(-128)},               // temperature sensor T8
    {52,  U16, "CAN_FuelLevel"},                                             // bit 15 set: percent in the low 15 bits; clear: 0.1 litre
    {53,  F32, "CAN_FuelConsumption", in(Litre).noneBelowZero()},            // CAN total fuel consumption
    {54,  U16, "CAN_EngineTurns",     in(TurnsPerMinute).none(0xFFFF)},      // CAN engine speed
    {55,  I8,  "CAN_Temp",            in(Celsius).none(-128)},               // CAN coolant temperature
    {56,  F32, "CAN_FullRun",         in(Kilometre).noneBelowZero()},        // CAN total mileage
    {57,  U16, "CAN_AxleLoad_1",      in(Kilogram).none(0xFFFF)},            // CAN load on axle 1
    {58,  U16, "CAN_AxleLoad_2",      in(Kilogram).none(0xFFFF)},            // CAN load on axle 2
    {59,  U16, "CAN_AxleLoad_3",      in(Kilogram).none(0xFFFF)},            // CAN load on axle 3
    {60,  U16, "CAN_AxleLoad_4",      in(Kilogram).none(0xFFFF)},            // CAN load on axle 4
    {61,  U16, "CAN_AxleLoad_5",      in(Kilogram).none(0xFFFF)},            // CAN load on axle 5
    {62,  U8,  "CAN_PedalAccel",      in(Percent).none(255)},                // CAN accelerator pedal position
    {63,  U8,  "CAN_PedalStop",       in(Percent).none(255)},                // CAN brake pedal position
    {64,  U8,  "CAN_EngineLoad",      in(Percent).none(255)},                // CAN engine load
    {65,  U16, "CAN_LevelFiltr"},                                            // filtered; bit 15 set: percent in the low 7 bits; clear: 0.1 litre
    {66,  U32, "CAN_EngineTime",      in(Hour).per(3600)},                   // CAN engine running time
    {67,  U16, "CAN_TimeTO",          in(Kilometre).none(0xFFFF)},           // CAN distance to service
    {68,  U8,  "CAN_Speed",           in(KilometrePerHour).none(255)},       // CAN speed
    {69,  U8,  "NaviInfoGlonass"},                                           // satellites in use: GLONASS
    {69,  U8,  "NaviInfoGPS"},                                               // GPS
    {69,  U8,  "NaviInfoGalileo"},                                           // Galileo
    {69,  U8,  "NaviInfoCompass"},                                           // Compass
    {69,  U8,  "NaviInfoBeidou"},                                            // Beidou
    {69,  U8,  "NaviInfoDoris"},                                             // DORIS
    {69,  U8,  "NaviInfoIrnss"},                                             // IRNSS
    {69,  U8,  "NaviInfoQzss"},                                              // QZSS
    {70,  U8,  "NaviHDop",            number().per(10)},                     // HDOP
    {70,  U8,  "NaviPDop",            number().per(10)},                     // PDOP
    {71,  U8,  "NaviState"},                                                 // as StateNGauge for the receiver; bit 0 fixed or float point
    {72,  I64, "NaviLatitude",        in(Degree).per(600'000'000)},          // latitude
    {72,  I64, "NaviLongitude",       in(Degree).per(600'000'000)},          // longitude
    {73,  I32, "NaviAltitude",        in(Metre).per(1000)},                  // altitude
    {74,  U16, "NaviCourse",          in(Degree).per(100)},                  // course
    {75,  F32, "NaviSpeed",           in(KilometrePerHour)},                 // speed
    {76,  U32, "LbsCellID"},                                                 // serving cell: CellID
    {76,  U16, "LbsLac"},                                                    // serving cell: LAC
    {76,  U16, "LbsMcc"},                                                    // serving cell: MCC
    {76,  U16, "LbsMnc"},                                                    // serving cell: MNC
    {76,  I8,  "LbsLevel",            in(DecibelMilliwatt)},                 // serving cell: radio level
    {76,  U32, "LbsCellID_1"},                                               // neighbour cell 1: CellID
    {76,  U16, "LbsLac_1"},                                                  // neighbour cell 1: LAC
    {76,  U16, "LbsMcc_1"},                                                  // neighbour cell 1: MCC
    {76,  U16, "LbsMnc_1"},                                                  // neighbour cell 1: MNC
    {76,  I8,  "LbsLevel_1",          in(DecibelMilliwatt)},                 // neighbour cell 1: radio level
    {76,  U32, "LbsCellID_2"},                                               // neighbour cell 2: CellID
    {76,  U16, "LbsLac_2"},                                                  // neighbour cell 2: LAC
    {76,  U16, "LbsMcc_2"},                                                  // neighbour cell 2: MCC
    {76,  U16, "LbsMnc_2"},                                                  // neighbour cell 2: MNC
    {76,  I8,  "LbsLevel_2",          in(DecibelMilliwatt)},                 // neighbour cell 2: radio level
    {76,  U32, "LbsTime",             in(UnixSeconds)},                      // time of the last LBS data
    {77,  I8,  "TempRS485_1",         in(Celsius)},                          // temperature of RS-485 fuel sensor 1
    {78,  I8,  "TempRS485_2",         in(Celsius)},                          // temperature of RS-485 fuel sensor 2
    {79,  I8,  "TempRS485_3",         in(Celsius)},                          // temperature of RS-485 fuel sensor 3
    {80,  I8,  "TempRS485_4",         in(Celsius)},                          // temperature of RS-485 fuel sensor 4
    {81,  I8,  "TempRS485_5",         in(Celsius)},                          // temperature of RS-485 fuel sensor 5
    {82,  I8,  "TempRS485_6",         in(Celsius)},                          // temperature of RS-485 fuel sensor 6
    {83,  U16, "LevelRS485_7"},                                              // level of RS-485 fuel sensor 7
    {83,  I8,  "TempRS485_7",         in(Celsius)},                          // temperature of RS-485 fuel sensor 7
    {84,  U16, "LevelRS485_8"},                                              // level of RS-485 fuel sensor 8
    {84,  I8,  "TempRS485_8",         in(Celsius)},                          // temperature of RS-485 fuel sensor 8
    {85,  U16, "LevelRS485_9"},                                              // level of RS-485 fuel sensor 9
    {85,  I8,  "TempRS485_9",         in(Celsius)},                          // temperature of RS-485 fuel sensor 9
    {86,  U16, "LevelRS485_10"},                                             // level of RS-485 fuel sensor 10
    {86,  I8,  "TempRS485_10",        in(Celsius)},                          // temperature of RS-485 fuel sensor 10
    {87,  U16, "LevelRS485_11"},                                             // level of RS-485 fuel sensor 11
    {87,  I8,  "TempRS485_11",        in(Celsius)},                          // temperature of RS-485 fuel sensor 11
    {88,  U16, "LevelRS485_12"},                                             // level of RS-485 fuel sensor 12
    {88,  I8,  "TempRS485_12",        in(Celsius)},                          // temperature of RS-485 fuel sensor 12
    {89,  U16, "LevelRS485_13"},                                             // level of RS-485 fuel sensor 13
    {89,  I8,  "TempRS485_13",        in(Celsius)},                          // temperature of RS-485 fuel sensor 13
    {90,  U16, "LevelRS485_14"},                                             // level of RS-485 fuel sensor 14
    {90,  I8,  "TempRS485_14",        in(Celsius)},                          // temperature of RS-485 fuel sensor 14
    {91,  U16, "LevelRS485_15"},                                             // level of RS-485 fuel sensor 15
    {91,  I8,  "TempRS485_15",        in(Celsius)},                          // temperature of RS-485 fuel sensor 15
    {92,  U16, "LevelRS485_16"},                                             // level of RS-485 fuel sensor 16
    {92,  I8,  "TempRS485_16",        in(Celsius)},                          // temperature of RS-485 fuel sensor 16
    {93,  U8,  "TiresNum1"},                                                 // tyre sensor 1: tyre number
    {93,  U8,  "TiresPres1",          number().per(10)},                     // pressure
    {93,  I8,  "TiresTemp1",          in(Celsius).none(-127)},
    {93,  U8,  "TiresNum2"},                                                 // tyre sensor 2: tyre number
    {93,  U8,  "TiresPres2",          number().per(10)},                     // pressure
    {93,  I8,  "TiresTemp2",          in(Celsius).none(-127)},
    {94,  U8,  "TiresNum3"},                                                 // tyre sensor 3: tyre number
    {94,  U8,  "TiresPres3",          number().per(10)},                     // pressure
    {94,  I8,  "TiresTemp3",          in(Celsius).none(-127)},
    {94,  U8,  "TiresNum4"},                                                 // tyre sensor 4: tyre number
    {94,  U8,  "TiresPres4",          number().per(10)},                     // pressure
    {94,  I8,  "TiresTemp4",          in(Celsius).none(-127)},
    {94,  U8,  "TiresNum5"},                                                 // tyre sensor 5: tyre number
    {94,  U8,  "TiresPres5",          number().per(10)},                     // pressure
    {94,  I8,  "TiresTemp5",          in(Celsius).none(-127)},
    {94,  U8,  "TiresNum6"},                                                 // tyre sensor 6: tyre number
    {94,  U8,  "TiresPres6",          number().per(10)},                     // pressure
    {94,  I8,  "TiresTemp6",          in(Celsius).none(-127)},
    {95,  U8,  "TiresNum7"},                                                 // tyre sensor 7: tyre number
    {95,  U8,  "TiresPres7",          number().per(10)},                     // pressure
    {95,  I8,  "TiresTemp7",          in(Celsius).none(-127)},
    {95,  U8,  "TiresNum8"},                                                 // tyre sensor 8: tyre number
    {95,  U8,  "TiresPres8",          number().per(10)},                     // pressure
    {95,  I8,  "TiresTemp8",          in(Celsius).none(-127)},
    {95,  U8,  "TiresNum9"},                                                 // tyre sensor 9: tyre number
    {95,  U8,  "TiresPres9",          number().per(10)},                     // pressure
    {95,  I8,  "TiresTemp9",          in(Celsius).none(-127)},
    {95,  U8,  "TiresNum10"},                                                // tyre sensor 10: tyre number
    {95,  U8,  "TiresPres10",         number().per(10)},                     // pressure
    {95,  I8,  "TiresTemp10",         in(Celsius).none(-127)},
    {95,  U8,  "TiresNum11"},                                                // tyre sensor 11: tyre number
    {95,  U8,  "TiresPres11",         number().per(10)},                     // pressure
    {95,  I8,  "TiresTemp11",         in(Celsius).none(-127)},
    {95,  U8,  "TiresNum12"},                                                // tyre sensor 12: tyre number
    {95,  U8,  "TiresPres12",         number().per(10)},                     // pressure
    {95,  I8,  "TiresTemp12",         in(Celsius).none(-127)},
    {95,  U8,  "TiresNum13"},                                                // tyre sensor 13: tyre number
    {95,  U8,  "TiresPres13",         number().per(10)},                     // pressure
    {95,  I8,  "TiresTemp13",         in(Celsius).none(-127)},
    {95,  U8,  "TiresNum14"},                                                // tyre sensor 14: tyre number
    {95,  U8,  "TiresPres14",         number().per(10)},                     // pressure
    {95,  I8,  "TiresTemp14",         in(Celsius).none(-127)},
    {96,  U8,  "TiresNum15"},                                                // tyre sensor 15: tyre number
    {96,  U8,  "TiresPres15",         number().per(10)},                     // pressure
    {96,  I8,  "TiresTemp15",         in(Celsius).none(-127)},
    {96,  U8,  "TiresNum16"},                                                // tyre sensor 16: tyre number
    {96,  U8,  "TiresPres16",         number().per(10)},                     // pressure
    {96,  I8,  "TiresTemp16",         in(Celsius).none(-127)},
    {96,  U8,  "TiresNum17"},                                                // tyre sensor 17: tyre number
    {96,  U8,  "TiresPres17",         number().per(10)},                     // pressure
    {96,  I8,  "TiresTemp17",         in(Celsius).none(-127)},
    {96,  U8,  "TiresNum18"},                                                // tyre sensor 18: tyre number
    {96,  U8,  "TiresPres18",         number().per(10)},                     // pressure
    {96,  I8,  "TiresTemp18",         in(Celsius).none(-127)},
    {96,  U8,  "TiresNum19"},                                                // tyre sensor 19: tyre number
    {96,  U8,  "TiresPres19",         number().per(10)},                     // pressure
    {96,  I8,  "TiresTemp19",         in(Celsius).none(-127)},
    {96,  U8,  "TiresNum20"},                                                // tyre sensor 20: tyre number
    {96,  U8,  "TiresPres20",         number().per(10)},                     // pressure
    {96,  I8,  "TiresTemp20",         in(Celsius).none(-127)},
    {96,  U8,  "TiresNum21"},                                                // tyre sensor 21: tyre number
    {96,  U8,  "TiresPres21",         number().per(10)},                     // pressure
    {96,  I8,  "TiresTemp21",         in(Celsius).none(-127)},
    {96,  U8,  "TiresNum22"},                                                // tyre sensor 22: tyre number
    {96,  U8,  "TiresPres22",         number().per(10)},                     // pressure
    {96,  I8,  "TiresTemp22",         in(Celsius).none(-127)},
    {96,  U8,  "TiresNum23"},                                                // tyre sensor 23: tyre number
    {96,  U8,  "TiresPres23",         number().per(10)},                     // pressure
    {96,  I8,  "TiresTemp23",         in(Celsius).none(-127)},
    {96,  U8,  "TiresNum24"},                                                // tyre sensor 24: tyre number
    {96,  U8,  "TiresPres24",         number().per(10)},                     // pressure
    {96,  I8,  "TiresTemp24",         in(Celsius).none(-127)},
    {96,  U8,  "TiresNum25"},                                                // tyre sensor 25: tyre number
    {96,  U8,  "TiresPres25",         number().per(10)},                     // pressure
    {96,  I8,  "TiresTemp25",         in(Celsius).none(-127)},
    {96,  U8,  "TiresNum26"},                                                // tyre sensor 26: tyre number
    {96,  U8,  "TiresPres26",         number().per(10)},                     // pressure
    {96,  I8,  "TiresTemp26",         in(Celsius).none(-127)},
    {96,  U8,  "TiresNum27"},                                                // tyre sensor 27: tyre number
    {96,  U8,  "TiresPres27",         number().per(10)},                     // pressure
    {96,  I8,  "TiresTemp27",         in(Celsius).none(-127)},
    {96,  U8,  "TiresNum28"},                                                // tyre sensor 28: tyre number
    {96,  U8,  "TiresPres28",         number().per(10)},                     // pressure
    {96,  I8,  "TiresTemp28",         in(Celsius).none(-127)},
    {96,  U8,  "TiresNum29"},                                                // tyre sensor 29: tyre number
    {96,  U8,  "TiresPres29",         number().per(10)},                     // pressure
    {96,  I8,  "TiresTemp29",         in(Celsius).none(-127)},
    {96,  U8,  "TiresNum30"},                                                // tyre sensor 30: tyre number
    {96,  U8,  "TiresPres30",         number().per(10)},                     // pressure
    {96,  I8,  "TiresTemp30",         in(Celsius).none(-127)},
    {97,  U8,  "TahoState"},                                                 // tachograph: four two-bit states of driver 1 and driver 2
    {98,  U8,  "TahoMode"},                                                  // tachograph mode
    {99,  U16, "TahoFlags"},                                                 // tachograph flags
    {100, U8,  "TahoSpeed",           in(KilometrePerHour)},                 // tachograph speed
    {101, U32, "TahoOdometer",        number().per(10).none(0xFFFF'FFFF)},   // tachograph odometer
    {102, U32, "TahoTime",            in(UnixSeconds)},                      // tachograph time
    {103, U8,  "DispCur"},                                                   // driver display: current driver state
    {104, U32, "DispLastIndex",       number().none(0xFFFF'FFFF)},           // driver display: index of the last message
    {105, U16, "AccelDelta",          in(Second).per(100).none(0xFFFF)},     // time increment from the previous record
    {106, I16, "AccelLinearX",        number().per(1000).none(-32768)},      // linear acceleration X
    {106, I16, "AccelLinearY",        number().per(1000).none(-32768)},      // linear acceleration Y
    {106, I16, "AccelLinearZ",        number().per(1000).none(-32768)},      // linear acceleration Z
    {107, U16, "AccelModule",         in(Second).per(100).none(0xFFFF)},     // time above the threshold; 65535: beyond the range
    {108, I16, "AccelAngularPlus",    number().per(1000).none(-32768)},      // maximum acceleration
    {108, I16, "AccelAngularMinus",   number().per(1000).none(-32768)},      // maximum braking
    {108, I16, "AccelAngularCorner",  number().per(1000).none(-32768)},      // maximum lateral acceleration
    {109, U8,  "Passager_1",          number().none(255)},                   // passenger counter 1, door 1
    {109, U8,  "Passager_2",          number().none(255)},                   // passenger counter 2, door 1
    {110, U8,  "Passager_3",          number().none(255)},                   // passenger counter 3, door 2
    {110, U8,  "Passager_4",          number().none(255)},                   // passenger counter 4, door 2
    {111, U8,  "Passager_5",          number().none(255)},                   // passenger counter 5, door 3
    {111, U8,  "Passager_6",          number().none(255)},                   // passenger counter 6, door 3
    {112, U8,  "Passager_7",          number().none(255)},                   // passenger counter 7, door 4
    {112, U8,  "Passager_8",          number().none(255)},                   // passenger counter 8, door 4
    {113, U8,  "Passager_9",          number().none(255)},                   // passenger counter 9, door 5
    {113, U8,  "Passager_10",         number().none(255)},                   // passenger counter 10, door 5
    {114, U8,  "Passager_11",         number().none(255)},                   // passenger counter 11, door 6
    {114, U8,  "Passager_12",         number().none(255)},                   // passenger counter 12, door 6
    {115, U8,  "Passager_13",         number().none(255)},                   // passenger counter 13, door 7
    {115, U8,  "Passager_14",         number().none(255)},                   // passenger counter 14, door 7
    {116, U8,  "Passager_15",         number().none(255)},                   // passenger counter 15, door 8
    {116, U8,  "Passager_16",         number().none(255)},                   // passenger counter 16, door 8
    {117, U8,  "AinfState"},                                                 // announcer status bits
    {118, U16, "AinfGeozoneID",       number().none(0)},                     // announcer: ID of the last geofence
    {119, U16, "AinfStopID",          number().none(0)},                     // announcer: ID of the last stop
    {120, U16, "AinfRouteID",         number().none(0)},                     // announcer: ID of the current route
    {121, U8,  "CameraState"},                                               // camera status bits
    {122, U8,  "State2"},                                                    // device status 2 bits
    {123, U8,  "Module3"},                                                   // functional module status 3 bits
    {124, U8,  "StateCnct"},                                                 // connection status bits
    {125, U8,  "StateIn3"},                                                  // discrete inputs 17 to 24, bit n is input n+17
    {126, U32, "StateIn_Imp3"},                                              // pulse counter 3
    {127, U32, "StateIn_Imp4"},                                              // pulse counter 4
    {128, U32, "StateIn_Imp5"},                                              // pulse counter 5
    {129, U32, "StateIn_Imp6"},                                              // pulse counter 6
    {130, U32, "StateIn_Imp7"},                                              // pulse counter 7
    {131, U32, "StateIn_Imp8"},                                              // pulse counter 8
    {132, U16, "Frequency3",          in(Hertz)},                            // frequency sensor 3
    {133, U16, "Frequency4",          in(Hertz)},                            // frequency sensor 4
    {134, U16, "Frequency5",          in(Hertz)},                            // frequency sensor 5
    {135, U16, "Frequency6",          in(Hertz)},                            // frequency sensor 6
    {136, U16, "Frequency7",          in(Hertz)},                            // frequency sensor 7
    {137, U16, "Frequency8",          in(Hertz)},                            // frequency sensor 8
    {138, U8,  "VAccelState"},                                               // virtual sensors SH1 to SH4, bits 0 to 3
    {139, U8,  "VAccelVertical",      in(Degree).times(0.25)},               // tilt from the local vertical by sensor SH4
    {140, I8,  "VAccelLineTang",      in(Degree)},                           // tilt from the plumb line (pitch)
    {140, I8,  "VAccelLineRoll",      in(Degree).times(1.5)},                // tilt from the plumb line (roll)
    {141, U8,  "VAccelAxelsX"},                                              // external tilt sensor, deviation X
    {141, U8,  "VAccelAxelsY"},                                              // external tilt sensor, deviation Y
    {141, U8,  "VAccelAxelsZ"},                                              // external tilt sensor, deviation Z
    {142, I16, "EcoDrvAccelMax",      number().per(1000)},                   // maximum vertical acceleration over the period
    {143, U8,  "EcoDrvSpeedMax",      in(KilometrePerHour)},                 // maximum speed over the period
    {144, U8,  "EcoDrvSpeedState"},                                          // speed thresholds 1 to 6, one bit each
    {145, U8,  "EcoDrvAccel1"},                                              // bits 0 to 3 acceleration thresholds 1 to 4, bits 4 to 7 braking
    {145, U8,  "EcoDrvAccel2"},                                              // bits 0 to 3 left turn thresholds, bits 4 to 7 right turn
    {145, U8,  "EcoDrvAccel3"},                                              // vertical thresholds 1 to 4 in bits 0 to 3
    {146, U16, "RS485Freq1",          in(Hertz)},                            // frequency of RS-485 sensor 1
    {147, U16, "RS485Freq2",          in(Hertz)},                            // frequency of RS-485 sensor 2
    {148, U16, "RS485Freq3",          in(Hertz)},                            // frequency of RS-485 sensor 3
    {149, U16, "RS485Freq4",          in(Hertz)},                            // frequency of RS-485 sensor 4
    {150, U16, "RS485Freq5",          in(Hertz)},                            // frequency of RS-485 sensor 5
    {151, U16, "RS485Freq6",          in(Hertz)},                            // frequency of RS-485 sensor 6
    {152, U16, "RS485Freq7",          in(Hertz)},                            // frequency of RS-485 sensor 7
    {153, U16, "RS485Freq8",          in(Hertz)},                            // frequency of RS-485 sensor 8
    {154, U16, "RS485Freq9",          in(Hertz)},                            // frequency of RS-485 sensor 9
    {155, U16, "RS485Freq10",         in(Hertz)},                            // frequency of RS-485 sensor 10
    {156, U16, "RS485Freq11",         in(Hertz)},                            // frequency of RS-485 sensor 11
    {157, U16, "RS485Freq12",         in(Hertz)},                            // frequency of RS-485 sensor 12
    {158, U16, "RS485Freq13",         in(Hertz)},                            // frequency of RS-485 sensor 13
    {159, U16, "RS485Freq14",         in(Hertz)},                            // frequency of RS-485 sensor 14
    {160, U16, "RS485Freq15",         in(Hertz)},                            // frequency of RS-485 sensor 15
    {161, U16, "RS485Freq16",         in(Hertz)},                            // frequency of RS-485 sensor 16
    {162, I16, "HPrecisionTemp1",     in(Celsius).per(20).none(-32768)},     // temperature sensor 1
    {163, I16, "HPrecisionTemp2",     in(Celsius).per(20).none(-32768)},     // temperature sensor 2
    {164, I16, "HPrecisionTemp3",     in(Celsius).per(20).none(-32768)},     // temperature sensor 3
    {165, I16, "HPrecisionTemp4",     in(Celsius).per(20).none(-32768)},     // temperature sensor 4
    {166, U8,  "HPrecisionHumidity1", in(Humidity).times(0.5).none(255)},    // humidity sensor 1
    {167, U8,  "HPrecisionHumidity2", in(Humidity).times(0.5).none(255)},    // humidity sensor 2
    {168, U8,  "HPrecisionHumidity3", in(Humidity).times(0.5).none(255)},    // humidity sensor 3
    {169, U8,  "HPrecisionHumidity4", in(Humidity).times(0.5).none(255)},    // humidity sensor 4
    {170, U16, "FfsState"},                                                  // fuel flow sensor status nibbles
    {171, U32, "FfsError"},                                                  // fuel flow sensor error word
    {172, U32, "FfsFuel",             in(Litre).times(0.01)},                // fuel flow sensor: total fuel
    {173, U32, "FfsFuelTrip",         in(Litre).times(0.01)},                // fuel flow sensor: trip fuel
    {174, I16, "FfsSpeed",            in(LitrePerHour).times(0.1)},          // fuel flow sensor: flow
    {175, U32, "FfsSubmisVolume",     in(Litre).times(0.01)},                // supply chamber: volume
    {176, I16, "FfsSubmisSpeed",      in(LitrePerHour).times(0.1)},          // supply chamber: flow
    {177, I16, "FfsSubmisTemp",       in(Celsius).times(0.1)},               // supply chamber: temperature
    {178, U32, "FfsReversVolume",     in(Litre).times(0.01)},                // return chamber: volume
    {179, I16, "FfsReversSpeed",      in(LitrePerHour).times(0.1)},          // return chamber: flow
    {180, I16, "FfsReversTemp",       in(Celsius).times(0.1)},               // return chamber: temperature
    {181, U8,  "RefrState1"},                                                // bit 0 working, bit 1 mode, bits 2 to 4 vendor
    {181, U8,  "RefrState2"},                                                // operating mode code
    {182, I16, "RefrTemp1",           in(Celsius).times(0.01)},              // refrigerator zone 1 temperature
    {183, I16, "RefrTemp2",           in(Celsius).times(0.01)},              // refrigerator zone 2 temperature
    {184, I16, "RefrTemp3",           in(Celsius).times(0.01)},              // refrigerator zone 3 temperature
    {185, I16, "RefrSetTemp1",        in(Celsius).times(0.01)},              // refrigerator zone 1 set temperature
    {186, I16, "RefrSetTemp2",        in(Celsius).times(0.01)},              // refrigerator zone 2 set temperature
    {187, I16, "RefrSetTemp3",        in(Celsius).times(0.01)},              // refrigerator zone 3 set temperature
    {188, I16, "RefrTempAir",         in(Celsius).times(0.01)},              // refrigerator outside air temperature
    {189, I16, "RefrTempWater",       in(Celsius).times(0.01)},              // refrigerator coolant temperature
    {190, U16, "RefrTension",         in(Millivolt).none(0xFFFF)},           // refrigerator voltage
    {191, U16, "RefrIntensity",       in(Milliampere).none(0xFFFF)},         // refrigerator current
    {192, U32, "RefrPowerEngine",     in(Hour).per(100).none(0xFFFF'FFFF)},  // running time on the engine
    {193, U32, "RefrPowerNetwork",    in(Hour).per(100).none(0xFFFF'FFFF)},  // running time on the mains
    {194, U16, "RefrErrorCount"},                                            // refrigerator: number of errors
    {194, U16, "RefrErrorCode1"},                                            // refrigerator error code 1
    {195, U16, "RefrErrorCode2"},                                            // refrigerator error code 2
    {195, U16, "RefrErrorCode3"},                                            // refrigerator error code 3
    {196, U16, "RefrErrorCode4"},                                            // refrigerator error code 4
    {196, U16, "RefrErrorCode5"},                                            // refrigerator error code 5
    {196, U16, "RefrErrorCode6"},                                            // refrigerator error code 6
    {197, U8,  "RefrEngineMode"},                                            // refrigerator engine mode
    {197, U16, "RefrEngineTurns",     in(TurnsPerMinute).none(0xFFFF)},      // refrigerator engine speed
    {198, U8,  "RefrCompressor"},                                            // refrigerator compressor state code
    {199, U16, "GeozoneInfo"},                                               // presence in geofences 1 to 10, bit n is geofence n+1
    {200, U16, "CAN3State"},                                                 // CAN state bits
    {201, U8,  "CAN3Event"},                                                 // CAN event code
    {202, U32, "CAN3Crash"},                                                 // CAN crash bits
    {203, U8,  "CAN3FailureLamp"},                                           // CAN failure lamp bits
    {203, U32, "CAN3FailureCode"},                                           // CAN failure code
    {204, U32, "MotochasLoadOn"},                                            // engine hours under load
    {205, U32, "MotochasLoadOff"},                                           // engine hours without load
    {206, U8,  "User1Byte_1"},                                               // user parameters, raw bytes
    {207, U8,  "User1Byte_2"},                                               // number 2
    {208, U8,  "User1Byte_3"},                                               // number 3
    {209, U8,  "User1Byte_4"},                                               // number 4
    {210, U8,  "User1Byte_5"},                                               // number 5
    {211, U8,  "User1Byte_6"},                                               // number 6
    {212, U8,  "User1Byte_7"},                                               // number 7
    {213, U8,  "User1Byte_8"},                                               // number 8
    {214, U8,  "User1Byte_9"},                                               // number 9
    {215, U8,  "User1Byte_10"},                                              // number 10
    {216, U8,  "User1Byte_11"},                                              // number 11
    {217, U8,  "User1Byte_12"},                                              // number 12
    {218, U8,  "User1Byte_13"},                                              // number 13
    {219, U8,  "User1Byte_14"},                                              // number 14
    {220, U8,  "User1Byte_15"},                                              // number 15
    {221, U8,  "User1Byte_16"},                                              // number 16
    {222, U16, "User2Byte_1"},                                               // user parameters, raw bytes
    {223, U16, "User2Byte_2"},                                               // number 2
    {224, U16, "User2Byte_3"},                                               // number 3
    {225, U16, "User2Byte_4"},                                               // number 4
    {226, U16, "User2Byte_5"},                                               // number 5
    {227, U16, "User2Byte_6"},                                               // number 6
    {228, U16, "User2Byte_7"},                                               // number 7
    {229, U16, "User2Byte_8"},                                               // number 8
    {230, U16, "User2Byte_9"},                                               // number 9
    {231, U16, "User2Byte_10"},                                              // number 10
    {232, U16, "User2Byte_11"},                                              // number 11
    {233, U16, "User2Byte_12"},                                              // number 12
    {234, U16, "User2Byte_13"},                                              // number 13
    {235, U16, "User2Byte_14"},                                              // number 14
    {236, U16, "User2Byte_15"},                                              // number 15
    {237, U32, "User4Byte_1"},                                               // user parameters, raw bytes
    {238, U32, "User4Byte_2"},                                               // number 2
    {239, U32, "User4Byte_3"},                                               // number 3
    {240, U32, "User4Byte_4"},                                               // number 4
    {241, U32, "User4Byte_5"},                                               // number 5
    {242, U32, "User4Byte_6"},                                               // number 6
    {243, U32, "User4Byte_7"},                                               // number 7
    {244, U32, "User4Byte_8"},                                               // number 8
    {245, U32, "User4Byte_9"},                                               // number 9
    {246, U32, "User4Byte_10"},                                              // number 10
    {247, U32, "User4Byte_11"},                                              // number 11
    {248, U32, "User4Byte_12"},                                              // number 12
    {249, U32, "User4Byte_13"},                                              // number 13
    {250, U32, "User4Byte_14"},                                              // number 14
    {251, U32, "User4Byte_15"},                                              // number 15
    {252, U64, "User8Byte_1"},                                               // user parameters, raw bytes
    {253, U64, "User8Byte_2"},                                               // number 2
    {254, U64, "User8Byte_3"},                                               // number 3
};
// clang-format on

} // namespace vlk::catalogue
