#pragma once

// The headings of the columns and the items below them. A heading is text in which
//
//     tmizta_123, abbr_047   stand for their texts, up to a "<val>" in it
//     tmizta_192++           is that key for the first column of the row, then the next key for each
//     #                      is the number of the column: `first` for the first one, then counting up
//     tmizta_211#            puts the number in the place of the "<val>"
//
// Several headings, apart by "|", take turns; each round of them has the same number. Items are named as in
// item_rows.h; several lists of them, apart by "|", take turns too.

namespace vlk::csv {

struct CsvRow
{
    const char* heading;
    const char* items;
    int first = 1;
};

// clang-format off
inline constexpr CsvRow kCsvRows[] = {
    {"tmizta_123",   "NumPage"},                                // Record number
    {"tmizta_124",   "Code"},                                   // Event
    {"tmizta_125",   "Time.local"},                             // Time
    {"tmizta_001",   "State.0"},                                // Test mode
    {"tmizta_126",   "State.1"},                                // Power source
    {"tmizta_127",   "State.2"},                                // Alarm
    {"tmizta_128",   "State.mode"},                             // Mode
    {"tmizta_129",   "State.5"},                                // Towing away
    {"tmizta_130",   "State.6"},                                // Power saving
    {"tmizta_131",   "State.7"},                                // Accelerometer calibration
    {"GSM",          "Module1.0"},
    {"tmizta_132++", "Module1.1..3 Module1.sim Module1.5..7"},  // USB, ...
    {"tmizta_139++", "Module2.jamming Module2.2..6"},           // GSM jamming, ...
    {"tmizta_145",   "GSM"},                                    // Signal level

    // Navigation
    {"GLONASS/GPS",  "StateNGauge.0"},
    {"tmizta_146",   "StateNGauge.fix"},                                                                   // Position validity
    {"tmizta_147",   "StateNGauge.satellites"},                                                            // Satellites
    {"tmizta_148++", "LastTime Latitude Longitude Altitude Speed Course Run Way AllSeconds SecondsLast"},  // Time of the last position, ...

    // Lines and sensors
    {"tmizta_158++",        "Power Reserv"},     // Supply voltage, V, ...
    {"AIN#",                "StateU_Ain1..8"},
    {"IN#",                 "StateIn1..2.0..7"},
    {"O#",                  "StateOut1..2.0..7"},
    {"tmizta_160 #",        "StateIn_Imp1..2"},  // Pulse-counting input #
    {"tmizta_161 #",        "Frequency1..2"},    // Frequency input #
    {"tmizta_162",          "Motochas"},         // Engine hours
    {"RS-485 tmizta_163 #", "LevelRS485_1..6"},  // RS-485 Fuel level #
    {"RS-232 tmizta_163",   "LevelRS232"},       // RS-232 Fuel level
    {"Т#",                  "Temp1..8"},

    // CAN
    {"CAN tmizta_164, %",        "CAN_FuelLevel.percent"},                                     // CAN Fuel level, %
    {"CAN tmizta_164, abbr_026", "CAN_FuelLevel.litres"},                                      // CAN Fuel level, l
    {"CAN tmizta_165++",         "CAN_FuelConsumption CAN_EngineTurns CAN_Temp CAN_FullRun"},  // CAN Total fuel consumption, ...
    {"CAN tmizta_169 #",         "CAN_AxleLoad_1..5"},                                         // CAN Axle load #
    {"CAN tmizta_170++",         "CAN_PedalAccel CAN_PedalStop CAN_EngineLoad"},               // CAN Accelerator pedal, ...
    {"CAN tmizta_173, %",        "CAN_LevelFiltr.percent"},                                    // CAN Filtered fuel level, %
    {"CAN tmizta_173, abbr_026", "CAN_LevelFiltr.litres"},                                     // CAN Filtered fuel level, l
    {"CAN tmizta_174++",         "CAN_EngineTime CAN_TimeTO CAN_Speed"},                       // CAN Engine running time, ...

    // Satellites and the high-precision receiver
    {"tmizta_177 GLONASS",       "NaviInfoGlonass"},                          // Navigation GLONASS
    {"tmizta_177 GPS",           "NaviInfoGPS"},                              // Navigation GPS
    {"tmizta_177 Galileo",       "NaviInfoGalileo"},                          // Navigation Galileo
    {"tmizta_177 COMPASS",       "NaviInfoCompass"},                          // Navigation COMPASS
    {"tmizta_177 BeiDou",        "NaviInfoBeidou"},                           // Navigation BeiDou
    {"tmizta_177 DORIS",         "NaviInfoDoris"},                            // Navigation DORIS
    {"tmizta_177 IRNSS",         "NaviInfoIrnss"},                            // Navigation IRNSS
    {"tmizta_177 QZSS",          "NaviInfoQzss"},                             // Navigation QZSS
    {"HDOP",                     "NaviHDop"},
    {"PDOP",                     "NaviPDop"},
    {"tmizta_178. tmizta_128",   "NaviState.0"},                              // High-precision receiver. Mode
    {"tmizta_178. tmizta_177",   "NaviState.1"},                              // High-precision receiver. Navigation
    {"tmizta_178. tmizta_179",   "NaviState.satellites"},                     // High-precision receiver. Satellites
    {"tmizta_178. tmizta_149++", "NaviLatitude NaviLongitude NaviAltitude"},  // High-precision receiver. Latitude, ...
    {"tmizta_178. tmizta_153",   "NaviCourse"},                               // High-precision receiver. Course, °
    {"tmizta_178. tmizta_152",   "NaviSpeed"},                                // High-precision receiver. Speed, km/h
    {"LBS tmizta_180 #|LBS tmizta_181 #|LBS tmizta_182 #|LBS tmizta_183 #|LBS tmizta_145 #",
     "LbsCellID LbsCellID_1..2|LbsLac LbsLac_1..2|LbsMcc LbsMcc_1..2|LbsMnc LbsMnc_1..2|LbsLevel "
     "LbsLevel_1..2"},                                                        // LBS CellID # | LBS LAC # | LBS MCC # | LBS MNC...
    {"LBS tmizta_184",           "LbsTime"},                                  // LBS Time

    // Further sensors
    {"RS-485 tmizta_185 #",                                   "TempRS485_1..6"},                               // RS-485 Temperature #
    {"RS-485 tmizta_163 #|RS-485 tmizta_185 #",               "LevelRS485_7..16|TempRS485_7..16", 7},          // RS-485 Fuel level # | RS-485 Temperature #
    {"TPMS tmizta_187 #|TPMS tmizta_186 #|TPMS tmizta_185 #", "TiresNum1..30|TiresPres1..30|TiresTemp1..30"},  // TPMS Wheel number # | TPMS Pressure # | TPMS...

    // Tachograph and driver display
    {"tmizta_188 tmizta_189 1",                         "TahoState.activity1"},                  // Tachograph Driver 1
    {"tmizta_188 tmizta_190 #",                         "TahoState.card1 TahoState.activity2"},  // Tachograph Card slot #
    {"tmizta_188 tmizta_189 2",                         "TahoState.card2"},                      // Tachograph Driver 2
    {"tmizta_188 tmizta_128",                           "TahoMode"},                             // Tachograph Mode
    {"tmizta_188 tmizta_191: tmizta_192++",             "TahoFlags.0..5"},                       // Tachograph State: ignition, ...
    {"tmizta_188 tmizta_191: tmizta_198 #. tmizta_199", "TahoFlags.group1 TahoFlags.group2"},    // Tachograph State: driver #. Working time
    {"tmizta_188 tmizta_152",                           "TahoSpeed"},                            // Tachograph Speed, km/h
    {"tmizta_188 tmizta_154",                           "TahoOdometer"},                         // Tachograph Mileage, km
    {"tmizta_188 tmizta_200",                           "TahoTime"},                             // Tachograph Time
    {"tmizta_201 tmizta_202++",                         "DispCur DispLastIndex"},                // Driver display Driver state, ...

    // Accelerometer, doors, announcer, camera
    {"EcoDriving tmizta_204",   "AccelDelta"},                                                         // EcoDriving Time increment, s
    {"tmizta_205 tmizta_206",   "AccelLinearX"},                                                       // Accelerometer Linear acceleration
    {"tmizta_205 tmizta_206 Y", "AccelLinearY"},                                                       // Accelerometer Linear acceleration Y
    {"tmizta_205 tmizta_206 Z", "AccelLinearZ"},                                                       // Accelerometer Linear acceleration Z
    {"EcoDriving tmizta_207++", "AccelModule AccelAngularPlus AccelAngularMinus AccelAngularCorner"},  // EcoDriving Time above the threshold, s, ...
    {"tmizta_211#|tmizta_212#", "Passager_1..16"},                                                     // Door #: entered | Door #: exited
    {"tmizta_213 tmizta_191",   "AinfState.0"},                                                        // Announcer State
    {"tmizta_213 tmizta_214++", "AinfState.1..5"},                                                     // Announcer Geofence, ...
    {"tmizta_213 tmizta_128",   "AinfState.6"},                                                        // Announcer Mode
    {"tmizta_213 tmizta_219++", "AinfGeozoneID AinfStopID AinfRouteID"},                               // Announcer Last geofence, ...
    {"tmizta_222 tmizta_191",   "CameraState.0"},                                                      // Camera State
    {"tmizta_222 tmizta_223++", "CameraState.1..2"},                                                   // Camera Recording, ...
    {"tmizta_222 tmizta_217",   "CameraState.3"},                                                      // Camera Health

    // Fields of protocol 3.0
    {"tmizta_225",                    "State2.0"},                                                       // Case opening sensor
    {"Iridium",                       "Module3.0"},
    {"tmizta_226",                    "Module3.1"},                                                      // Additional modem
    {"tmizta_227 tmizta_228",         "StateCnct.connection"},                                           // Connection Channel
    {"tmizta_227 tmizta_229 #",       "StateCnct.3..5"},                                                 // Connection Server #
    {"tmizta_227 tmizta_229 RCS/RFU", "StateCnct.6"},                                                    // Connection Server RCS/RFU
    {"tmizta_227 tmizta_230",         "StateCnct.7"},                                                    // Connection Bluetooth / pulse-counting input
    {"IN#",                           "StateIn3.0..7",   17},
    {"tmizta_230 #",                  "StateIn_Imp3..8", 3},                                             // Bluetooth / pulse-counting input #
    {"tmizta_231 #",                  "Frequency3..8",   3},                                             // Frequency input #
    {"tmizta_205 tmizta_232++",       "VAccelState.0..4 VAccelVertical VAccelLineTang VAccelLineRoll"},  // Accelerometer Weak shock, ...
    {"tmizta_240 X",                  "VAccelAxelsX"},                                                   // External tilt sensor X
    {"tmizta_240 Y",                  "VAccelAxelsY"},                                                   // External tilt sensor Y
    {"tmizta_240 Z",                  "VAccelAxelsZ"},                                                   // External tilt sensor Z
    {"EcoDriving tmizta_241++",       "EcoDrvAccelMax EcoDrvSpeedMax"},                                  // EcoDriving Max. vertical acceleration, ...
    {"EcoDriving tmizta_243 #",       "EcoDrvSpeedState.0..5"},                                          // EcoDriving Speed threshold #
    {"EcoDriving tmizta_244 #",       "EcoDrvAccel1.0..3"},                                              // EcoDriving Acceleration threshold #
    {"EcoDriving tmizta_245 #",       "EcoDrvAccel1.4..7"},                                              // EcoDriving Braking threshold #
    {"EcoDriving tmizta_246 #",       "EcoDrvAccel2.0..3"},                                              // EcoDriving Left turn threshold #
    {"EcoDriving tmizta_247 #",       "EcoDrvAccel2.4..7"},                                              // EcoDriving Right turn threshold #
    {"EcoDriving tmizta_248 #",       "EcoDrvAccel3.0..3"},                                              // EcoDriving Vertical acceleration threshold #
    {"RS-485 tmizta_249 #",           "RS485Freq1..16"},                                                 // RS-485 Frequency, Hz, sensor #
    {"tmizta_250 #",                  "HPrecisionTemp1..4"},                                             // High-precision temperature sensor #
    {"tmizta_251 #",                  "HPrecisionHumidity1..4"},                                         // High-precision humidity sensor #

    // Fuel flow sensor and refrigerator
    {"tmizta_252 tmizta_253++",            "FfsState.supply FfsState.return FfsState.engine FfsState.power"},  // Fuel flow sensor Supply chamber mode, ...
    {"tmizta_257 tmizta_258++", "FfsError FfsFuel FfsFuelTrip FfsSpeed FfsSubmisVolume FfsSubmisSpeed "
                                "FfsSubmisTemp FfsReversVolume FfsReversSpeed FfsReversTemp"},                 // Fuel flow sensor Error code, ...
    {"tmizta_268 tmizta_269++",            "RefrState1.0..1 RefrState1.vendor RefrState2 RefrState2.vendor"},  // Refrigerator unit State, ...
    {"tmizta_268 tmizta_274 #",            "RefrTemp1..3"},                                                    // Refrigerator unit Temperature of zone #
    {"tmizta_268 tmizta_275 #",            "RefrSetTemp1..3"},                                                 // Refrigerator unit Set temperature of zone #
    {"tmizta_268 tmizta_276",              "RefrTempAir"},                                                     // Refrigerator unit Outside temperature
    {"tmizta_268 tmizta_167",              "RefrTempWater"},                                                   // Refrigerator unit Coolant temperature
    {"tmizta_268 tmizta_277++", "RefrTension RefrIntensity RefrPowerEngine RefrPowerNetwork RefrErrorCount "
                                "RefrErrorCode1..6 RefrEngineMode"},                                           // Refrigerator unit Voltage, ...
    {"tmizta_268 tmizta_166",              "RefrEngineTurns"},                                                 // Refrigerator unit Engine speed
    {"tmizta_268 tmizta_289 (tmizta_290)", "RefrCompressor"},                                                  // Refrigerator unit Compressor (common)
    {"tmizta_268 tmizta_289 (tmizta_291)", "RefrCompressor.vendor"},                                           // Refrigerator unit Compressor (by manufacturer)

    // Geofences, CAN states, user parameters
    {"tmizta_292 tmizta_293 #",            "GeozoneInfo.0..9"},                                   // Geofence control geofence #
    {"tmizta_294 tmizta_295++",            "CAN3State.0..15"},                                    // CAN Ignition, ...
    {"tmizta_294 tmizta_311",              "CAN3Event"},                                          // CAN Event
    {"tmizta_294 tmizta_312 tmizta_313++", "CAN3Crash.0..22 CAN3Crash.24..28 CAN3Crash.30..31"},  // CAN Failure low oil pressure, ...
    {"tmizta_294 tmizta_343 tmizta_344++", "CAN3FailureLamp.0..7 CAN3FailureCode"},               // CAN Failure lamps check engine, ...
    {"tmizta_353++",                       "MotochasLoadOn MotochasLoadOff"},                     // Engine hours under load, ...
    {"tmizta_355 abbr_047 #",              "User1Byte_1..16"},                                    // User parameter, 1 B, No. #
    {"tmizta_356 abbr_047 #",              "User2Byte_1..15"},                                    // User parameter, 2 B, No. #
    {"tmizta_357 abbr_047 #",              "User4Byte_1..15"},                                    // User parameter, 4 B, No. #
    {"tmizta_358 abbr_047 #",              "User8Byte_1..3"},                                     // User parameter, 8 B, No. #
};
// clang-format on

} // namespace vlk::csv
