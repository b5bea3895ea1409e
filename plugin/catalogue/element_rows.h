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
    {0,   u32, "NumPage"},                                                   // record number
    {1,   u16, "Code"},                                                      // event code
    {2,   u32, "Time",                in(unixSeconds)},                      // event time
    {3,   u8,  "State"},                                                     // device status bits
    {4,   u8,  "Module1"},                                                   // functional module status 1 bits
    {5,   u8,  "Module2"},                                                   // functional module status 2 bits
    {6,   u8,  "GSM",                 in(percent).times(3.22).none(99)},     // GSM signal level, 0 to 31
    {7,   u8,  "StateNGauge"},                                               // bit 0 working, bit 1 fix valid, bits 2 to 7 satellites in use
    {8,   u32, "LastTime",            in(unixSeconds)},                      // time of the last valid fix
    {9,   i32, "Latitude",            in(degree).per(600'000)},              // latitude, south negative
    {10,  i32, "Longitude",           in(degree).per(600'000)},              // longitude, west negative
    {11,  i32, "Altitude",            in(metre).per(10)},                    // altitude
    {12,  f32, "Speed",               in(kilometrePerHour)},                 // speed
    {13,  u16, "Course",              in(degree)},                           // course
    {14,  f32, "Run",                 in(kilometre)},                        // total mileage
    {15,  f32, "Way",                 in(kilometre)},                        // length of the last path segment
    {16,  u16, "AllSeconds",          in(second)},                           // interval over which the last segment was computed
    {17,  u16, "SecondsLast",         in(second)},                           // time in which the last segment was travelled
    {18,  u16, "Power",               in(volt).per(1000)},                   // main supply voltage
    {19,  u16, "Reserv",              in(volt).per(1000)},                   // backup supply voltage
    {20,  u16, "StateU_Ain1",         in(volt).per(1000)},                   // voltage of analog input 1
    {21,  u16, "StateU_Ain2",         in(volt).per(1000)},                   // voltage of analog input 2
    {22,  u16, "StateU_Ain3",         in(volt).per(1000)},                   // voltage of analog input 3
    {23,  u16, "StateU_Ain4",         in(volt).per(1000)},                   // voltage of analog input 4
    {24,  u16, "StateU_Ain5",         in(volt).per(1000)},                   // voltage of analog input 5
    {25,  u16, "StateU_Ain6",         in(volt).per(1000)},                   // voltage of analog input 6
    {26,  u16, "StateU_Ain7",         in(volt).per(1000)},                   // voltage of analog input 7
    {27,  u16, "StateU_Ain8",         in(volt).per(1000)},                   // voltage of analog input 8
    {28,  u8,  "StateIn1"},                                                  // discrete inputs 1 to 8, bit n is input n+1
    {29,  u8,  "StateIn2"},                                                  // discrete inputs 9 to 16, bit n is input n+9
    {30,  u8,  "StateOut1"},                                                 // outputs 1 to 8, bit n is output n+1
    {31,  u8,  "StateOut2"},                                                 // outputs 9 to 16, bit n is output n+9
    {32,  u32, "StateIn_Imp1"},                                              // pulse counter 1
    {33,  u32, "StateIn_Imp2"},                                              // pulse counter 2
    {34,  u16, "Frequency1",          in(hertz)},                            // frequency sensor 1
    {35,  u16, "Frequency2",          in(hertz)},                            // frequency sensor 2
    {36,  u32, "Motochas"},                                                  // engine hours, total
    {37,  u16, "LevelRS485_1"},                                              // level of RS-485 fuel sensor 1
    {38,  u16, "LevelRS485_2"},                                              // level of RS-485 fuel sensor 2
    {39,  u16, "LevelRS485_3"},                                              // level of RS-485 fuel sensor 3
    {40,  u16, "LevelRS485_4"},                                              // level of RS-485 fuel sensor 4
    {41,  u16, "LevelRS485_5"},                                              // level of RS-485 fuel sensor 5
    {42,  u16, "LevelRS485_6"},                                              // level of RS-485 fuel sensor 6
    {43,  u16, "LevelRS232"},                                                // level of the RS-232 fuel sensor
    {44,  i8,  "Temp1",               in(celsius).none(-128)},               // temperature sensor T1
    {45,  i8,  "Temp2",               in(celsius).none(-128)},               // temperature sensor T2
    {46,  i8,  "Temp3",               in(celsius).none(-128)},               // temperature sensor T3
    {47,  i8,  "Temp4",               in(celsius).none(-128)},               // temperature sensor T4
    {48,  i8,  "Temp5",               in(celsius).none(-128)},               // temperature sensor T5
    {49,  i8,  "Temp6",               in(celsius).none(-128)},               // temperature sensor T6
    {50,  i8,  "Temp7",               in(celsius).none(-128)},               // temperature sensor T7
    {51,  i8,  "Temp8",               in(celsius).none(-128)},               // temperature sensor T8
    {52,  u16, "CAN_FuelLevel"},                                             // bit 15 set: percent in the low 15 bits; clear: 0.1 litre
    {53,  f32, "CAN_FuelConsumption", in(litre).noneBelowZero()},            // CAN total fuel consumption
    {54,  u16, "CAN_EngineTurns",     in(turnsPerMinute).none(0xFFFF)},      // CAN engine speed
    {55,  i8,  "CAN_Temp",            in(celsius).none(-128)},               // CAN coolant temperature
    {56,  f32, "CAN_FullRun",         in(kilometre).noneBelowZero()},        // CAN total mileage
    {57,  u16, "CAN_AxleLoad_1",      in(kilogram).none(0xFFFF)},            // CAN load on axle 1
    {58,  u16, "CAN_AxleLoad_2",      in(kilogram).none(0xFFFF)},            // CAN load on axle 2
    {59,  u16, "CAN_AxleLoad_3",      in(kilogram).none(0xFFFF)},            // CAN load on axle 3
    {60,  u16, "CAN_AxleLoad_4",      in(kilogram).none(0xFFFF)},            // CAN load on axle 4
    {61,  u16, "CAN_AxleLoad_5",      in(kilogram).none(0xFFFF)},            // CAN load on axle 5
    {62,  u8,  "CAN_PedalAccel",      in(percent).none(255)},                // CAN accelerator pedal position
    {63,  u8,  "CAN_PedalStop",       in(percent).none(255)},                // CAN brake pedal position
    {64,  u8,  "CAN_EngineLoad",      in(percent).none(255)},                // CAN engine load
    {65,  u16, "CAN_LevelFiltr"},                                            // filtered; bit 15 set: percent in the low 7 bits; clear: 0.1 litre
    {66,  u32, "CAN_EngineTime",      in(hour).per(3600)},                   // CAN engine running time
    {67,  u16, "CAN_TimeTO",          in(kilometre).none(0xFFFF)},           // CAN distance to service
    {68,  u8,  "CAN_Speed",           in(kilometrePerHour).none(255)},       // CAN speed
    {69,  u8,  "NaviInfoGlonass"},                                           // satellites in use: GLONASS
    {69,  u8,  "NaviInfoGPS"},                                               // GPS
    {69,  u8,  "NaviInfoGalileo"},                                           // Galileo
    {69,  u8,  "NaviInfoCompass"},                                           // Compass
    {69,  u8,  "NaviInfoBeidou"},                                            // Beidou
    {69,  u8,  "NaviInfoDoris"},                                             // DORIS
    {69,  u8,  "NaviInfoIrnss"},                                             // IRNSS
    {69,  u8,  "NaviInfoQzss"},                                              // QZSS
    {70,  u8,  "NaviHDop",            number().per(10)},                     // HDOP
    {70,  u8,  "NaviPDop",            number().per(10)},                     // PDOP
    {71,  u8,  "NaviState"},                                                 // as StateNGauge for the receiver; bit 0 fixed or float point
    {72,  i64, "NaviLatitude",        in(degree).per(600'000'000)},          // latitude
    {72,  i64, "NaviLongitude",       in(degree).per(600'000'000)},          // longitude
    {73,  i32, "NaviAltitude",        in(metre).per(1000)},                  // altitude
    {74,  u16, "NaviCourse",          in(degree).per(100)},                  // course
    {75,  f32, "NaviSpeed",           in(kilometrePerHour)},                 // speed
    {76,  u32, "LbsCellID"},                                                 // serving cell: CellID
    {76,  u16, "LbsLac"},                                                    // serving cell: LAC
    {76,  u16, "LbsMcc"},                                                    // serving cell: MCC
    {76,  u16, "LbsMnc"},                                                    // serving cell: MNC
    {76,  i8,  "LbsLevel",            in(decibelMilliwatt)},                 // serving cell: radio level
    {76,  u32, "LbsCellID_1"},                                               // neighbour cell 1: CellID
    {76,  u16, "LbsLac_1"},                                                  // neighbour cell 1: LAC
    {76,  u16, "LbsMcc_1"},                                                  // neighbour cell 1: MCC
    {76,  u16, "LbsMnc_1"},                                                  // neighbour cell 1: MNC
    {76,  i8,  "LbsLevel_1",          in(decibelMilliwatt)},                 // neighbour cell 1: radio level
    {76,  u32, "LbsCellID_2"},                                               // neighbour cell 2: CellID
    {76,  u16, "LbsLac_2"},                                                  // neighbour cell 2: LAC
    {76,  u16, "LbsMcc_2"},                                                  // neighbour cell 2: MCC
    {76,  u16, "LbsMnc_2"},                                                  // neighbour cell 2: MNC
    {76,  i8,  "LbsLevel_2",          in(decibelMilliwatt)},                 // neighbour cell 2: radio level
    {76,  u32, "LbsTime",             in(unixSeconds)},                      // time of the last LBS data
    {77,  i8,  "TempRS485_1",         in(celsius)},                          // temperature of RS-485 fuel sensor 1
    {78,  i8,  "TempRS485_2",         in(celsius)},                          // temperature of RS-485 fuel sensor 2
    {79,  i8,  "TempRS485_3",         in(celsius)},                          // temperature of RS-485 fuel sensor 3
    {80,  i8,  "TempRS485_4",         in(celsius)},                          // temperature of RS-485 fuel sensor 4
    {81,  i8,  "TempRS485_5",         in(celsius)},                          // temperature of RS-485 fuel sensor 5
    {82,  i8,  "TempRS485_6",         in(celsius)},                          // temperature of RS-485 fuel sensor 6
    {83,  u16, "LevelRS485_7"},                                              // level of RS-485 fuel sensor 7
    {83,  i8,  "TempRS485_7",         in(celsius)},                          // temperature of RS-485 fuel sensor 7
    {84,  u16, "LevelRS485_8"},                                              // level of RS-485 fuel sensor 8
    {84,  i8,  "TempRS485_8",         in(celsius)},                          // temperature of RS-485 fuel sensor 8
    {85,  u16, "LevelRS485_9"},                                              // level of RS-485 fuel sensor 9
    {85,  i8,  "TempRS485_9",         in(celsius)},                          // temperature of RS-485 fuel sensor 9
    {86,  u16, "LevelRS485_10"},                                             // level of RS-485 fuel sensor 10
    {86,  i8,  "TempRS485_10",        in(celsius)},                          // temperature of RS-485 fuel sensor 10
    {87,  u16, "LevelRS485_11"},                                             // level of RS-485 fuel sensor 11
    {87,  i8,  "TempRS485_11",        in(celsius)},                          // temperature of RS-485 fuel sensor 11
    {88,  u16, "LevelRS485_12"},                                             // level of RS-485 fuel sensor 12
    {88,  i8,  "TempRS485_12",        in(celsius)},                          // temperature of RS-485 fuel sensor 12
    {89,  u16, "LevelRS485_13"},                                             // level of RS-485 fuel sensor 13
    {89,  i8,  "TempRS485_13",        in(celsius)},                          // temperature of RS-485 fuel sensor 13
    {90,  u16, "LevelRS485_14"},                                             // level of RS-485 fuel sensor 14
    {90,  i8,  "TempRS485_14",        in(celsius)},                          // temperature of RS-485 fuel sensor 14
    {91,  u16, "LevelRS485_15"},                                             // level of RS-485 fuel sensor 15
    {91,  i8,  "TempRS485_15",        in(celsius)},                          // temperature of RS-485 fuel sensor 15
    {92,  u16, "LevelRS485_16"},                                             // level of RS-485 fuel sensor 16
    {92,  i8,  "TempRS485_16",        in(celsius)},                          // temperature of RS-485 fuel sensor 16
    {93,  u8,  "TiresNum1"},                                                 // tyre sensor 1: tyre number
    {93,  u8,  "TiresPres1",          number().per(10)},                     // pressure
    {93,  i8,  "TiresTemp1",          in(celsius).none(-127)},
    {93,  u8,  "TiresNum2"},                                                 // tyre sensor 2: tyre number
    {93,  u8,  "TiresPres2",          number().per(10)},                     // pressure
    {93,  i8,  "TiresTemp2",          in(celsius).none(-127)},
    {94,  u8,  "TiresNum3"},                                                 // tyre sensor 3: tyre number
    {94,  u8,  "TiresPres3",          number().per(10)},                     // pressure
    {94,  i8,  "TiresTemp3",          in(celsius).none(-127)},
    {94,  u8,  "TiresNum4"},                                                 // tyre sensor 4: tyre number
    {94,  u8,  "TiresPres4",          number().per(10)},                     // pressure
    {94,  i8,  "TiresTemp4",          in(celsius).none(-127)},
    {94,  u8,  "TiresNum5"},                                                 // tyre sensor 5: tyre number
    {94,  u8,  "TiresPres5",          number().per(10)},                     // pressure
    {94,  i8,  "TiresTemp5",          in(celsius).none(-127)},
    {94,  u8,  "TiresNum6"},                                                 // tyre sensor 6: tyre number
    {94,  u8,  "TiresPres6",          number().per(10)},                     // pressure
    {94,  i8,  "TiresTemp6",          in(celsius).none(-127)},
    {95,  u8,  "TiresNum7"},                                                 // tyre sensor 7: tyre number
    {95,  u8,  "TiresPres7",          number().per(10)},                     // pressure
    {95,  i8,  "TiresTemp7",          in(celsius).none(-127)},
    {95,  u8,  "TiresNum8"},                                                 // tyre sensor 8: tyre number
    {95,  u8,  "TiresPres8",          number().per(10)},                     // pressure
    {95,  i8,  "TiresTemp8",          in(celsius).none(-127)},
    {95,  u8,  "TiresNum9"},                                                 // tyre sensor 9: tyre number
    {95,  u8,  "TiresPres9",          number().per(10)},                     // pressure
    {95,  i8,  "TiresTemp9",          in(celsius).none(-127)},
    {95,  u8,  "TiresNum10"},                                                // tyre sensor 10: tyre number
    {95,  u8,  "TiresPres10",         number().per(10)},                     // pressure
    {95,  i8,  "TiresTemp10",         in(celsius).none(-127)},
    {95,  u8,  "TiresNum11"},                                                // tyre sensor 11: tyre number
    {95,  u8,  "TiresPres11",         number().per(10)},                     // pressure
    {95,  i8,  "TiresTemp11",         in(celsius).none(-127)},
    {95,  u8,  "TiresNum12"},                                                // tyre sensor 12: tyre number
    {95,  u8,  "TiresPres12",         number().per(10)},                     // pressure
    {95,  i8,  "TiresTemp12",         in(celsius).none(-127)},
    {95,  u8,  "TiresNum13"},                                                // tyre sensor 13: tyre number
    {95,  u8,  "TiresPres13",         number().per(10)},                     // pressure
    {95,  i8,  "TiresTemp13",         in(celsius).none(-127)},
    {95,  u8,  "TiresNum14"},                                                // tyre sensor 14: tyre number
    {95,  u8,  "TiresPres14",         number().per(10)},                     // pressure
    {95,  i8,  "TiresTemp14",         in(celsius).none(-127)},
    {96,  u8,  "TiresNum15"},                                                // tyre sensor 15: tyre number
    {96,  u8,  "TiresPres15",         number().per(10)},                     // pressure
    {96,  i8,  "TiresTemp15",         in(celsius).none(-127)},
    {96,  u8,  "TiresNum16"},                                                // tyre sensor 16: tyre number
    {96,  u8,  "TiresPres16",         number().per(10)},                     // pressure
    {96,  i8,  "TiresTemp16",         in(celsius).none(-127)},
    {96,  u8,  "TiresNum17"},                                                // tyre sensor 17: tyre number
    {96,  u8,  "TiresPres17",         number().per(10)},                     // pressure
    {96,  i8,  "TiresTemp17",         in(celsius).none(-127)},
    {96,  u8,  "TiresNum18"},                                                // tyre sensor 18: tyre number
    {96,  u8,  "TiresPres18",         number().per(10)},                     // pressure
    {96,  i8,  "TiresTemp18",         in(celsius).none(-127)},
    {96,  u8,  "TiresNum19"},                                                // tyre sensor 19: tyre number
    {96,  u8,  "TiresPres19",         number().per(10)},                     // pressure
    {96,  i8,  "TiresTemp19",         in(celsius).none(-127)},
    {96,  u8,  "TiresNum20"},                                                // tyre sensor 20: tyre number
    {96,  u8,  "TiresPres20",         number().per(10)},                     // pressure
    {96,  i8,  "TiresTemp20",         in(celsius).none(-127)},
    {96,  u8,  "TiresNum21"},                                                // tyre sensor 21: tyre number
    {96,  u8,  "TiresPres21",         number().per(10)},                     // pressure
    {96,  i8,  "TiresTemp21",         in(celsius).none(-127)},
    {96,  u8,  "TiresNum22"},                                                // tyre sensor 22: tyre number
    {96,  u8,  "TiresPres22",         number().per(10)},                     // pressure
    {96,  i8,  "TiresTemp22",         in(celsius).none(-127)},
    {96,  u8,  "TiresNum23"},                                                // tyre sensor 23: tyre number
    {96,  u8,  "TiresPres23",         number().per(10)},                     // pressure
    {96,  i8,  "TiresTemp23",         in(celsius).none(-127)},
    {96,  u8,  "TiresNum24"},                                                // tyre sensor 24: tyre number
    {96,  u8,  "TiresPres24",         number().per(10)},                     // pressure
    {96,  i8,  "TiresTemp24",         in(celsius).none(-127)},
    {96,  u8,  "TiresNum25"},                                                // tyre sensor 25: tyre number
    {96,  u8,  "TiresPres25",         number().per(10)},                     // pressure
    {96,  i8,  "TiresTemp25",         in(celsius).none(-127)},
    {96,  u8,  "TiresNum26"},                                                // tyre sensor 26: tyre number
    {96,  u8,  "TiresPres26",         number().per(10)},                     // pressure
    {96,  i8,  "TiresTemp26",         in(celsius).none(-127)},
    {96,  u8,  "TiresNum27"},                                                // tyre sensor 27: tyre number
    {96,  u8,  "TiresPres27",         number().per(10)},                     // pressure
    {96,  i8,  "TiresTemp27",         in(celsius).none(-127)},
    {96,  u8,  "TiresNum28"},                                                // tyre sensor 28: tyre number
    {96,  u8,  "TiresPres28",         number().per(10)},                     // pressure
    {96,  i8,  "TiresTemp28",         in(celsius).none(-127)},
    {96,  u8,  "TiresNum29"},                                                // tyre sensor 29: tyre number
    {96,  u8,  "TiresPres29",         number().per(10)},                     // pressure
    {96,  i8,  "TiresTemp29",         in(celsius).none(-127)},
    {96,  u8,  "TiresNum30"},                                                // tyre sensor 30: tyre number
    {96,  u8,  "TiresPres30",         number().per(10)},                     // pressure
    {96,  i8,  "TiresTemp30",         in(celsius).none(-127)},
    {97,  u8,  "TahoState"},                                                 // tachograph: four two-bit states of driver 1 and driver 2
    {98,  u8,  "TahoMode"},                                                  // tachograph mode
    {99,  u16, "TahoFlags"},                                                 // tachograph flags
    {100, u8,  "TahoSpeed",           in(kilometrePerHour)},                 // tachograph speed
    {101, u32, "TahoOdometer",        number().per(10).none(0xFFFF'FFFF)},   // tachograph odometer
    {102, u32, "TahoTime",            in(unixSeconds)},                      // tachograph time
    {103, u8,  "DispCur"},                                                   // driver display: current driver state
    {104, u32, "DispLastIndex",       number().none(0xFFFF'FFFF)},           // driver display: index of the last message
    {105, u16, "AccelDelta",          in(second).per(100).none(0xFFFF)},     // time increment from the previous record
    {106, i16, "AccelLinearX",        number().per(1000).none(-32768)},      // linear acceleration X
    {106, i16, "AccelLinearY",        number().per(1000).none(-32768)},      // linear acceleration Y
    {106, i16, "AccelLinearZ",        number().per(1000).none(-32768)},      // linear acceleration Z
    {107, u16, "AccelModule",         in(second).per(100).none(0xFFFF)},     // time above the threshold; 65535: beyond the range
    {108, i16, "AccelAngularPlus",    number().per(1000).none(-32768)},      // maximum acceleration
    {108, i16, "AccelAngularMinus",   number().per(1000).none(-32768)},      // maximum braking
    {108, i16, "AccelAngularCorner",  number().per(1000).none(-32768)},      // maximum lateral acceleration
    {109, u8,  "Passager_1",          number().none(255)},                   // passenger counter 1, door 1
    {109, u8,  "Passager_2",          number().none(255)},                   // passenger counter 2, door 1
    {110, u8,  "Passager_3",          number().none(255)},                   // passenger counter 3, door 2
    {110, u8,  "Passager_4",          number().none(255)},                   // passenger counter 4, door 2
    {111, u8,  "Passager_5",          number().none(255)},                   // passenger counter 5, door 3
    {111, u8,  "Passager_6",          number().none(255)},                   // passenger counter 6, door 3
    {112, u8,  "Passager_7",          number().none(255)},                   // passenger counter 7, door 4
    {112, u8,  "Passager_8",          number().none(255)},                   // passenger counter 8, door 4
    {113, u8,  "Passager_9",          number().none(255)},                   // passenger counter 9, door 5
    {113, u8,  "Passager_10",         number().none(255)},                   // passenger counter 10, door 5
    {114, u8,  "Passager_11",         number().none(255)},                   // passenger counter 11, door 6
    {114, u8,  "Passager_12",         number().none(255)},                   // passenger counter 12, door 6
    {115, u8,  "Passager_13",         number().none(255)},                   // passenger counter 13, door 7
    {115, u8,  "Passager_14",         number().none(255)},                   // passenger counter 14, door 7
    {116, u8,  "Passager_15",         number().none(255)},                   // passenger counter 15, door 8
    {116, u8,  "Passager_16",         number().none(255)},                   // passenger counter 16, door 8
    {117, u8,  "AinfState"},                                                 // announcer status bits
    {118, u16, "AinfGeozoneID",       number().none(0)},                     // announcer: ID of the last geofence
    {119, u16, "AinfStopID",          number().none(0)},                     // announcer: ID of the last stop
    {120, u16, "AinfRouteID",         number().none(0)},                     // announcer: ID of the current route
    {121, u8,  "CameraState"},                                               // camera status bits
    {122, u8,  "State2"},                                                    // device status 2 bits
    {123, u8,  "Module3"},                                                   // functional module status 3 bits
    {124, u8,  "StateCnct"},                                                 // connection status bits
    {125, u8,  "StateIn3"},                                                  // discrete inputs 17 to 24, bit n is input n+17
    {126, u32, "StateIn_Imp3"},                                              // pulse counter 3
    {127, u32, "StateIn_Imp4"},                                              // pulse counter 4
    {128, u32, "StateIn_Imp5"},                                              // pulse counter 5
    {129, u32, "StateIn_Imp6"},                                              // pulse counter 6
    {130, u32, "StateIn_Imp7"},                                              // pulse counter 7
    {131, u32, "StateIn_Imp8"},                                              // pulse counter 8
    {132, u16, "Frequency3",          in(hertz)},                            // frequency sensor 3
    {133, u16, "Frequency4",          in(hertz)},                            // frequency sensor 4
    {134, u16, "Frequency5",          in(hertz)},                            // frequency sensor 5
    {135, u16, "Frequency6",          in(hertz)},                            // frequency sensor 6
    {136, u16, "Frequency7",          in(hertz)},                            // frequency sensor 7
    {137, u16, "Frequency8",          in(hertz)},                            // frequency sensor 8
    {138, u8,  "VAccelState"},                                               // virtual sensors SH1 to SH4, bits 0 to 3
    {139, u8,  "VAccelVertical",      in(degree).times(0.25)},               // tilt from the local vertical by sensor SH4
    {140, i8,  "VAccelLineTang",      in(degree)},                           // tilt from the plumb line (pitch)
    {140, i8,  "VAccelLineRoll",      in(degree).times(1.5)},                // tilt from the plumb line (roll)
    {141, u8,  "VAccelAxelsX"},                                              // external tilt sensor, deviation X
    {141, u8,  "VAccelAxelsY"},                                              // external tilt sensor, deviation Y
    {141, u8,  "VAccelAxelsZ"},                                              // external tilt sensor, deviation Z
    {142, i16, "EcoDrvAccelMax",      number().per(1000)},                   // maximum vertical acceleration over the period
    {143, u8,  "EcoDrvSpeedMax",      in(kilometrePerHour)},                 // maximum speed over the period
    {144, u8,  "EcoDrvSpeedState"},                                          // speed thresholds 1 to 6, one bit each
    {145, u8,  "EcoDrvAccel1"},                                              // bits 0 to 3 acceleration thresholds 1 to 4, bits 4 to 7 braking
    {145, u8,  "EcoDrvAccel2"},                                              // bits 0 to 3 left turn thresholds, bits 4 to 7 right turn
    {145, u8,  "EcoDrvAccel3"},                                              // vertical thresholds 1 to 4 in bits 0 to 3
    {146, u16, "RS485Freq1",          in(hertz)},                            // frequency of RS-485 sensor 1
    {147, u16, "RS485Freq2",          in(hertz)},                            // frequency of RS-485 sensor 2
    {148, u16, "RS485Freq3",          in(hertz)},                            // frequency of RS-485 sensor 3
    {149, u16, "RS485Freq4",          in(hertz)},                            // frequency of RS-485 sensor 4
    {150, u16, "RS485Freq5",          in(hertz)},                            // frequency of RS-485 sensor 5
    {151, u16, "RS485Freq6",          in(hertz)},                            // frequency of RS-485 sensor 6
    {152, u16, "RS485Freq7",          in(hertz)},                            // frequency of RS-485 sensor 7
    {153, u16, "RS485Freq8",          in(hertz)},                            // frequency of RS-485 sensor 8
    {154, u16, "RS485Freq9",          in(hertz)},                            // frequency of RS-485 sensor 9
    {155, u16, "RS485Freq10",         in(hertz)},                            // frequency of RS-485 sensor 10
    {156, u16, "RS485Freq11",         in(hertz)},                            // frequency of RS-485 sensor 11
    {157, u16, "RS485Freq12",         in(hertz)},                            // frequency of RS-485 sensor 12
    {158, u16, "RS485Freq13",         in(hertz)},                            // frequency of RS-485 sensor 13
    {159, u16, "RS485Freq14",         in(hertz)},                            // frequency of RS-485 sensor 14
    {160, u16, "RS485Freq15",         in(hertz)},                            // frequency of RS-485 sensor 15
    {161, u16, "RS485Freq16",         in(hertz)},                            // frequency of RS-485 sensor 16
    {162, i16, "HPrecisionTemp1",     in(celsius).per(20).none(-32768)},     // temperature sensor 1
    {163, i16, "HPrecisionTemp2",     in(celsius).per(20).none(-32768)},     // temperature sensor 2
    {164, i16, "HPrecisionTemp3",     in(celsius).per(20).none(-32768)},     // temperature sensor 3
    {165, i16, "HPrecisionTemp4",     in(celsius).per(20).none(-32768)},     // temperature sensor 4
    {166, u8,  "HPrecisionHumidity1", in(humidity).times(0.5).none(255)},    // humidity sensor 1
    {167, u8,  "HPrecisionHumidity2", in(humidity).times(0.5).none(255)},    // humidity sensor 2
    {168, u8,  "HPrecisionHumidity3", in(humidity).times(0.5).none(255)},    // humidity sensor 3
    {169, u8,  "HPrecisionHumidity4", in(humidity).times(0.5).none(255)},    // humidity sensor 4
    {170, u16, "FfsState"},                                                  // fuel flow sensor status nibbles
    {171, u32, "FfsError"},                                                  // fuel flow sensor error word
    {172, u32, "FfsFuel",             in(litre).times(0.01)},                // fuel flow sensor: total fuel
    {173, u32, "FfsFuelTrip",         in(litre).times(0.01)},                // fuel flow sensor: trip fuel
    {174, i16, "FfsSpeed",            in(litrePerHour).times(0.1)},          // fuel flow sensor: flow
    {175, u32, "FfsSubmisVolume",     in(litre).times(0.01)},                // supply chamber: volume
    {176, i16, "FfsSubmisSpeed",      in(litrePerHour).times(0.1)},          // supply chamber: flow
    {177, i16, "FfsSubmisTemp",       in(celsius).times(0.1)},               // supply chamber: temperature
    {178, u32, "FfsReversVolume",     in(litre).times(0.01)},                // return chamber: volume
    {179, i16, "FfsReversSpeed",      in(litrePerHour).times(0.1)},          // return chamber: flow
    {180, i16, "FfsReversTemp",       in(celsius).times(0.1)},               // return chamber: temperature
    {181, u8,  "RefrState1"},                                                // bit 0 working, bit 1 mode, bits 2 to 4 vendor
    {181, u8,  "RefrState2"},                                                // operating mode code
    {182, i16, "RefrTemp1",           in(celsius).times(0.01)},              // refrigerator zone 1 temperature
    {183, i16, "RefrTemp2",           in(celsius).times(0.01)},              // refrigerator zone 2 temperature
    {184, i16, "RefrTemp3",           in(celsius).times(0.01)},              // refrigerator zone 3 temperature
    {185, i16, "RefrSetTemp1",        in(celsius).times(0.01)},              // refrigerator zone 1 set temperature
    {186, i16, "RefrSetTemp2",        in(celsius).times(0.01)},              // refrigerator zone 2 set temperature
    {187, i16, "RefrSetTemp3",        in(celsius).times(0.01)},              // refrigerator zone 3 set temperature
    {188, i16, "RefrTempAir",         in(celsius).times(0.01)},              // refrigerator outside air temperature
    {189, i16, "RefrTempWater",       in(celsius).times(0.01)},              // refrigerator coolant temperature
    {190, u16, "RefrTension",         in(millivolt).none(0xFFFF)},           // refrigerator voltage
    {191, u16, "RefrIntensity",       in(milliampere).none(0xFFFF)},         // refrigerator current
    {192, u32, "RefrPowerEngine",     in(hour).per(100).none(0xFFFF'FFFF)},  // running time on the engine
    {193, u32, "RefrPowerNetwork",    in(hour).per(100).none(0xFFFF'FFFF)},  // running time on the mains
    {194, u16, "RefrErrorCount"},                                            // refrigerator: number of errors
    {194, u16, "RefrErrorCode1"},                                            // refrigerator error code 1
    {195, u16, "RefrErrorCode2"},                                            // refrigerator error code 2
    {195, u16, "RefrErrorCode3"},                                            // refrigerator error code 3
    {196, u16, "RefrErrorCode4"},                                            // refrigerator error code 4
    {196, u16, "RefrErrorCode5"},                                            // refrigerator error code 5
    {196, u16, "RefrErrorCode6"},                                            // refrigerator error code 6
    {197, u8,  "RefrEngineMode"},                                            // refrigerator engine mode
    {197, u16, "RefrEngineTurns",     in(turnsPerMinute).none(0xFFFF)},      // refrigerator engine speed
    {198, u8,  "RefrCompressor"},                                            // refrigerator compressor state code
    {199, u16, "GeozoneInfo"},                                               // presence in geofences 1 to 10, bit n is geofence n+1
    {200, u16, "CAN3State"},                                                 // CAN state bits
    {201, u8,  "CAN3Event"},                                                 // CAN event code
    {202, u32, "CAN3Crash"},                                                 // CAN crash bits
    {203, u8,  "CAN3FailureLamp"},                                           // CAN failure lamp bits
    {203, u32, "CAN3FailureCode"},                                           // CAN failure code
    {204, u32, "MotochasLoadOn"},                                            // engine hours under load
    {205, u32, "MotochasLoadOff"},                                           // engine hours without load
    {206, u8,  "User1Byte_1"},                                               // user parameters, raw bytes
    {207, u8,  "User1Byte_2"},                                               // number 2
    {208, u8,  "User1Byte_3"},                                               // number 3
    {209, u8,  "User1Byte_4"},                                               // number 4
    {210, u8,  "User1Byte_5"},                                               // number 5
    {211, u8,  "User1Byte_6"},                                               // number 6
    {212, u8,  "User1Byte_7"},                                               // number 7
    {213, u8,  "User1Byte_8"},                                               // number 8
    {214, u8,  "User1Byte_9"},                                               // number 9
    {215, u8,  "User1Byte_10"},                                              // number 10
    {216, u8,  "User1Byte_11"},                                              // number 11
    {217, u8,  "User1Byte_12"},                                              // number 12
    {218, u8,  "User1Byte_13"},                                              // number 13
    {219, u8,  "User1Byte_14"},                                              // number 14
    {220, u8,  "User1Byte_15"},                                              // number 15
    {221, u8,  "User1Byte_16"},                                              // number 16
    {222, u16, "User2Byte_1"},                                               // user parameters, raw bytes
    {223, u16, "User2Byte_2"},                                               // number 2
    {224, u16, "User2Byte_3"},                                               // number 3
    {225, u16, "User2Byte_4"},                                               // number 4
    {226, u16, "User2Byte_5"},                                               // number 5
    {227, u16, "User2Byte_6"},                                               // number 6
    {228, u16, "User2Byte_7"},                                               // number 7
    {229, u16, "User2Byte_8"},                                               // number 8
    {230, u16, "User2Byte_9"},                                               // number 9
    {231, u16, "User2Byte_10"},                                              // number 10
    {232, u16, "User2Byte_11"},                                              // number 11
    {233, u16, "User2Byte_12"},                                              // number 12
    {234, u16, "User2Byte_13"},                                              // number 13
    {235, u16, "User2Byte_14"},                                              // number 14
    {236, u16, "User2Byte_15"},                                              // number 15
    {237, u32, "User4Byte_1"},                                               // user parameters, raw bytes
    {238, u32, "User4Byte_2"},                                               // number 2
    {239, u32, "User4Byte_3"},                                               // number 3
    {240, u32, "User4Byte_4"},                                               // number 4
    {241, u32, "User4Byte_5"},                                               // number 5
    {242, u32, "User4Byte_6"},                                               // number 6
    {243, u32, "User4Byte_7"},                                               // number 7
    {244, u32, "User4Byte_8"},                                               // number 8
    {245, u32, "User4Byte_9"},                                               // number 9
    {246, u32, "User4Byte_10"},                                              // number 10
    {247, u32, "User4Byte_11"},                                              // number 11
    {248, u32, "User4Byte_12"},                                              // number 12
    {249, u32, "User4Byte_13"},                                              // number 13
    {250, u32, "User4Byte_14"},                                              // number 14
    {251, u32, "User4Byte_15"},                                              // number 15
    {252, u64, "User8Byte_1"},                                               // user parameters, raw bytes
    {253, u64, "User8Byte_2"},                                               // number 2
    {254, u64, "User8Byte_3"},                                               // number 3
};
// clang-format on

} // namespace vlk::catalogue
