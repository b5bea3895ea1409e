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

inline constexpr CsvRow kCsvRows[] = {
    {"tmizta_123", "NumPage"},
    {"tmizta_124", "Code"},
    {"tmizta_125", "Time.local"},
    {"tmizta_001", "State.0"},
    {"tmizta_126", "State.1"},
    {"tmizta_127", "State.2"},
    {"tmizta_128", "State.mode"},
    {"tmizta_129", "State.5"},
    {"tmizta_130", "State.6"},
    {"tmizta_131", "State.7"},
    {"GSM", "Module1.0"},
    {"tmizta_132++", "Module1.1..3 Module1.sim Module1.5..7"},
    {"tmizta_139++", "Module2.jamming Module2.2..6"},
    {"tmizta_145", "GSM"},

    // Navigation
    {"GLONASS/GPS", "StateNGauge.0"},
    {"tmizta_146", "StateNGauge.fix"},
    {"tmizta_147", "StateNGauge.satellites"},
    {"tmizta_148++", "LastTime Latitude Longitude Altitude Speed Course Run Way AllSeconds SecondsLast"},

    // Lines and sensors
    {"tmizta_158++", "Power Reserv"},
    {"AIN#", "StateU_Ain1..8"},
    {"IN#", "StateIn1..2.0..7"},
    {"O#", "StateOut1..2.0..7"},
    {"tmizta_160 #", "StateIn_Imp1..2"},
    {"tmizta_161 #", "Frequency1..2"},
    {"tmizta_162", "Motochas"},
    {"RS-485 tmizta_163 #", "LevelRS485_1..6"},
    {"RS-232 tmizta_163", "LevelRS232"},
    {"Т#", "Temp1..8"},

    // CAN
    {"CAN tmizta_164, %", "CAN_FuelLevel.percent"},
    {"CAN tmizta_164, abbr_026", "CAN_FuelLevel.litres"},
    {"CAN tmizta_165++", "CAN_FuelConsumption CAN_EngineTurns CAN_Temp CAN_FullRun"},
    {"CAN tmizta_169 #", "CAN_AxleLoad_1..5"},
    {"CAN tmizta_170++", "CAN_PedalAccel CAN_PedalStop CAN_EngineLoad"},
    {"CAN tmizta_173, %", "CAN_LevelFiltr.percent"},
    {"CAN tmizta_173, abbr_026", "CAN_LevelFiltr.litres"},
    {"CAN tmizta_174++", "CAN_EngineTime CAN_TimeTO CAN_Speed"},

    // Satellites and the high-precision receiver
    {"tmizta_177 GLONASS", "NaviInfoGlonass"},
    {"tmizta_177 GPS", "NaviInfoGPS"},
    {"tmizta_177 Galileo", "NaviInfoGalileo"},
    {"tmizta_177 COMPASS", "NaviInfoCompass"},
    {"tmizta_177 BeiDou", "NaviInfoBeidou"},
    {"tmizta_177 DORIS", "NaviInfoDoris"},
    {"tmizta_177 IRNSS", "NaviInfoIrnss"},
    {"tmizta_177 QZSS", "NaviInfoQzss"},
    {"HDOP", "NaviHDop"},
    {"PDOP", "NaviPDop"},
    {"tmizta_178. tmizta_128", "NaviState.0"},
    {"tmizta_178. tmizta_177", "NaviState.1"},
    {"tmizta_178. tmizta_179", "NaviState.satellites"},
    {"tmizta_178. tmizta_149++", "NaviLatitude NaviLongitude NaviAltitude"},
    {"tmizta_178. tmizta_153", "NaviCourse"},
    {"tmizta_178. tmizta_152", "NaviSpeed"},
    {"LBS tmizta_180 #|LBS tmizta_181 #|LBS tmizta_182 #|LBS tmizta_183 #|LBS tmizta_145 #",
     "LbsCellID LbsCellID_1..2|LbsLac LbsLac_1..2|LbsMcc LbsMcc_1..2|LbsMnc LbsMnc_1..2|LbsLevel "
     "LbsLevel_1..2"},
    {"LBS tmizta_184", "LbsTime"},

    // Further sensors
    {"RS-485 tmizta_185 #", "TempRS485_1..6"},
    {"RS-485 tmizta_163 #|RS-485 tmizta_185 #", "LevelRS485_7..16|TempRS485_7..16", 7},
    {"TPMS tmizta_187 #|TPMS tmizta_186 #|TPMS tmizta_185 #", "TiresNum1..30|TiresPres1..30|TiresTemp1..30"},

    // Tachograph and driver display
    {"tmizta_188 tmizta_189 1", "TahoState.activity1"},
    {"tmizta_188 tmizta_190 #", "TahoState.card1 TahoState.activity2"},
    {"tmizta_188 tmizta_189 2", "TahoState.card2"},
    {"tmizta_188 tmizta_128", "TahoMode"},
    {"tmizta_188 tmizta_191: tmizta_192++", "TahoFlags.0..5"},
    {"tmizta_188 tmizta_191: tmizta_198 #. tmizta_199", "TahoFlags.group1 TahoFlags.group2"},
    {"tmizta_188 tmizta_152", "TahoSpeed"},
    {"tmizta_188 tmizta_154", "TahoOdometer"},
    {"tmizta_188 tmizta_200", "TahoTime"},
    {"tmizta_201 tmizta_202++", "DispCur DispLastIndex"},

    // Accelerometer, doors, announcer, camera
    {"EcoDriving tmizta_204", "AccelDelta"},
    {"tmizta_205 tmizta_206", "AccelLinearX"},
    {"tmizta_205 tmizta_206 Y", "AccelLinearY"},
    {"tmizta_205 tmizta_206 Z", "AccelLinearZ"},
    {"EcoDriving tmizta_207++", "AccelModule AccelAngularPlus AccelAngularMinus AccelAngularCorner"},
    {"tmizta_211#|tmizta_212#", "Passager_1..16"},
    {"tmizta_213 tmizta_191", "AinfState.0"},
    {"tmizta_213 tmizta_214++", "AinfState.1..5"},
    {"tmizta_213 tmizta_128", "AinfState.6"},
    {"tmizta_213 tmizta_219++", "AinfGeozoneID AinfStopID AinfRouteID"},
    {"tmizta_222 tmizta_191", "CameraState.0"},
    {"tmizta_222 tmizta_223++", "CameraState.1..2"},
    {"tmizta_222 tmizta_217", "CameraState.3"},

    // Fields of protocol 3.0
    {"tmizta_225", "State2.0"},
    {"Iridium", "Module3.0"},
    {"tmizta_226", "Module3.1"},
    {"tmizta_227 tmizta_228", "StateCnct.connection"},
    {"tmizta_227 tmizta_229 #", "StateCnct.3..5"},
    {"tmizta_227 tmizta_229 RCS/RFU", "StateCnct.6"},
    {"tmizta_227 tmizta_230", "StateCnct.7"},
    {"IN#", "StateIn3.0..7", 17},
    {"tmizta_230 #", "StateIn_Imp3..8", 3},
    {"tmizta_231 #", "Frequency3..8", 3},
    {"tmizta_205 tmizta_232++", "VAccelState.0..4 VAccelVertical VAccelLineTang VAccelLineRoll"},
    {"tmizta_240 X", "VAccelAxelsX"},
    {"tmizta_240 Y", "VAccelAxelsY"},
    {"tmizta_240 Z", "VAccelAxelsZ"},
    {"EcoDriving tmizta_241++", "EcoDrvAccelMax EcoDrvSpeedMax"},
    {"EcoDriving tmizta_243 #", "EcoDrvSpeedState.0..5"},
    {"EcoDriving tmizta_244 #", "EcoDrvAccel1.0..3"},
    {"EcoDriving tmizta_245 #", "EcoDrvAccel1.4..7"},
    {"EcoDriving tmizta_246 #", "EcoDrvAccel2.0..3"},
    {"EcoDriving tmizta_247 #", "EcoDrvAccel2.4..7"},
    {"EcoDriving tmizta_248 #", "EcoDrvAccel3.0..3"},
    {"RS-485 tmizta_249 #", "RS485Freq1..16"},
    {"tmizta_250 #", "HPrecisionTemp1..4"},
    {"tmizta_251 #", "HPrecisionHumidity1..4"},

    // Fuel flow sensor and refrigerator
    {"tmizta_252 tmizta_253++", "FfsState.supply FfsState.return FfsState.engine FfsState.power"},
    {"tmizta_257 tmizta_258++", "FfsError FfsFuel FfsFuelTrip FfsSpeed FfsSubmisVolume FfsSubmisSpeed "
                                "FfsSubmisTemp FfsReversVolume FfsReversSpeed FfsReversTemp"},
    {"tmizta_268 tmizta_269++", "RefrState1.0..1 RefrState1.vendor RefrState2 RefrState2.vendor"},
    {"tmizta_268 tmizta_274 #", "RefrTemp1..3"},
    {"tmizta_268 tmizta_275 #", "RefrSetTemp1..3"},
    {"tmizta_268 tmizta_276", "RefrTempAir"},
    {"tmizta_268 tmizta_167", "RefrTempWater"},
    {"tmizta_268 tmizta_277++", "RefrTension RefrIntensity RefrPowerEngine RefrPowerNetwork RefrErrorCount "
                                "RefrErrorCode1..6 RefrEngineMode"},
    {"tmizta_268 tmizta_166", "RefrEngineTurns"},
    {"tmizta_268 tmizta_289 (tmizta_290)", "RefrCompressor"},
    {"tmizta_268 tmizta_289 (tmizta_291)", "RefrCompressor.vendor"},

    // Geofences, CAN states, user parameters
    {"tmizta_292 tmizta_293 #", "GeozoneInfo.0..9"},
    {"tmizta_294 tmizta_295++", "CAN3State.0..15"},
    {"tmizta_294 tmizta_311", "CAN3Event"},
    {"tmizta_294 tmizta_312 tmizta_313++", "CAN3Crash.0..22 CAN3Crash.24..28 CAN3Crash.30..31"},
    {"tmizta_294 tmizta_343 tmizta_344++", "CAN3FailureLamp.0..7 CAN3FailureCode"},
    {"tmizta_353++", "MotochasLoadOn MotochasLoadOff"},
    {"tmizta_355 abbr_047 #", "User1Byte_1..16"},
    {"tmizta_356 abbr_047 #", "User2Byte_1..15"},
    {"tmizta_357 abbr_047 #", "User4Byte_1..15"},
    {"tmizta_358 abbr_047 #", "User8Byte_1..3"},
};

} // namespace vlk::csv
