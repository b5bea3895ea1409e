#include "absent/params/param_catalogues.h"

namespace vlk {

namespace {

constexpr const char* kBit = nullptr;

constexpr CatalogueRow kCounter[] = {
    {1, "4u", "cfgt5_367"},  {2, "2u", "cfgt5_368"},  {3, "2u", "cfgt5_369"},  {4, "2u", "cfgt5_370"},
    {5, "2u", "cfgt5_371"},  {6, "2u", "cfgt5_372"},  {7, "2u", "cfgt5_373"},  {8, "1u", "cfgt5_374"},
    {9, "2u", "cfgt5_375"},  {10, "2u", "cfgt5_376"}, {11, "4u", "cfgt5_377"}, {12, "4u", "cfgt5_378"},
    {13, "4u", "cfgt5_379"}, {14, "4b", "cfgt5_380"}, {15, "1u", "cfgt5_381"}, {16, "1b", "cfgt5_382"},
};

constexpr CatalogueRow kVehicle[] = {
    {1, "4u", "cfgt5_053"},  {2, "2u", "cfgt5_054"},  {3, "2u", "cfgt5_055"},  {4, "1s", "cfgt5_056"},
    {5, "1u", "cfgt5_057"},  {6, "4u", "cfgt5_058"},  {7, "2s", "cfgt5_059"},  {8, "4u", "cfgt5_060"},
    {9, "1u", "cfgt5_061"},  {10, "1u", "cfgt5_062"}, {11, "1u", "cfgt5_063"}, {12, "2u", "cfgt5_064"},
    {13, "1u", "cfgt5_065"}, {14, "2s", "cfgt5_066"}, {15, "2u", "cfgt5_067"}, {16, "2u", "cfgt5_068"},
    {17, "2u", "cfgt5_069"}, {18, "2u", "cfgt5_070"}, {19, "2u", "cfgt5_071"}, {20, "2b", "cfgt5_072"},
    {21, kBit, "cfgt5_073"}, {22, kBit, "cfgt5_074"}, {23, kBit, "cfgt5_075"}, {24, kBit, "cfgt5_076"},
    {25, kBit, "cfgt5_077"}, {26, kBit, "cfgt5_078"}, {27, kBit, "cfgt5_079"}, {28, kBit, "cfgt5_080"},
    {29, kBit, "cfgt5_081"}, {30, kBit, "cfgt5_082"}, {31, kBit, "cfgt5_083"}, {32, kBit, "cfgt5_084"},
    {33, kBit, "cfgt5_085"}, {34, kBit, "cfgt5_086"}, {35, kBit, "cfgt5_087"}, {36, kBit, "cfgt5_088"},
    {38, "4b", "cfgt5_090"}, {39, kBit, "cfgt5_091"}, {40, kBit, "cfgt5_092"}, {41, kBit, "cfgt5_093"},
    {42, kBit, "cfgt5_094"}, {43, kBit, "cfgt5_095"}, {44, kBit, "cfgt5_096"}, {45, kBit, "cfgt5_097"},
    {47, kBit, "cfgt5_099"}, {48, kBit, "cfgt5_100"}, {49, kBit, "cfgt5_101"}, {50, kBit, "cfgt5_102"},
    {51, kBit, "cfgt5_103"}, {52, kBit, "cfgt5_104"}, {53, kBit, "cfgt5_105"}, {54, kBit, "cfgt5_106"},
    {55, kBit, "cfgt5_107"}, {56, kBit, "cfgt5_108"}, {57, kBit, "cfgt5_109"}, {58, kBit, "cfgt5_110"},
    {59, kBit, "cfgt5_111"}, {60, kBit, "cfgt5_112"}, {61, kBit, "cfgt5_113"}, {63, kBit, "cfgt5_115"},
    {64, kBit, "cfgt5_116"}, {65, kBit, "cfgt5_117"}, {66, kBit, "cfgt5_118"}, {67, kBit, "cfgt5_119"},
    {68, kBit, "cfgt5_120"}, {69, kBit, "cfgt5_121"}, {70, kBit, "cfgt5_122"}, {71, "1b", "cfgt5_123"},
    {72, kBit, "cfgt5_124"}, {73, kBit, "cfgt5_125"}, {74, kBit, "cfgt5_126"}, {75, kBit, "cfgt5_127"},
    {76, kBit, "cfgt5_128"}, {77, kBit, "cfgt5_129"}, {78, kBit, "cfgt5_130"}, {79, kBit, "cfgt5_131"},
    {80, "4u", "cfgt5_146"},
};

constexpr CatalogueRow kMachines[] = {
    {1, "2b", "cfgt5_147"},   {2, kBit, "cfgt5_148"},   {3, kBit, "cfgt5_149"},   {4, kBit, "cfgt5_150"},
    {5, kBit, "cfgt5_151"},   {6, kBit, "cfgt5_152"},   {7, kBit, "cfgt5_153"},   {8, kBit, "cfgt5_154"},
    {9, kBit, "cfgt5_155"},   {10, kBit, "cfgt5_156"},  {11, kBit, "cfgt5_157"},  {12, kBit, "cfgt5_158"},
    {13, kBit, "cfgt5_159"},  {14, kBit, "cfgt5_160"},  {15, kBit, "cfgt5_161"},  {17, kBit, "cfgt5_162"},
    {18, "2b", "cfgt5_163"},  {19, kBit, "cfgt5_164"},  {20, kBit, "cfgt5_165"},  {21, kBit, "cfgt5_166"},
    {22, kBit, "cfgt5_167"},  {23, kBit, "cfgt5_168"},  {24, kBit, "cfgt5_169"},  {25, kBit, "cfgt5_170"},
    {27, kBit, "cfgt5_171"},  {28, kBit, "cfgt5_172"},  {35, "2b", "cfgt5_173"},  {36, kBit, "cfgt5_174"},
    {37, kBit, "cfgt5_175"},  {38, kBit, "cfgt5_176"},  {39, kBit, "cfgt5_177"},  {40, kBit, "cfgt5_178"},
    {41, kBit, "cfgt5_179"},  {42, kBit, "cfgt5_180"},  {43, kBit, "cfgt5_181"},  {44, kBit, "cfgt5_182"},
    {45, kBit, "cfgt5_183"},  {46, kBit, "cfgt5_184"},  {47, kBit, "cfgt5_185"},  {48, kBit, "cfgt5_186"},
    {49, kBit, "cfgt5_187"},  {52, "1b", "cfgt5_188"},  {53, kBit, "cfgt5_189"},  {54, kBit, "cfgt5_190"},
    {55, kBit, "cfgt5_191"},  {56, kBit, "cfgt5_192"},  {61, "1b", "cfgt5_193"},  {62, kBit, "cfgt5_194"},
    {63, kBit, "cfgt5_195"},  {64, kBit, "cfgt5_196"},  {65, kBit, "cfgt5_197"},  {66, kBit, "cfgt5_198"},
    {67, kBit, "cfgt5_199"},  {70, "1b", "cfgt5_200"},  {71, kBit, "cfgt5_201"},  {72, kBit, "cfgt5_202"},
    {73, kBit, "cfgt5_203"},  {74, kBit, "cfgt5_204"},  {75, kBit, "cfgt5_205"},  {76, kBit, "cfgt5_206"},
    {77, kBit, "cfgt5_207"},  {78, kBit, "cfgt5_208"},  {79, "1b", "cfgt5_209"},  {80, kBit, "cfgt5_210"},
    {81, kBit, "cfgt5_211"},  {82, kBit, "cfgt5_212"},  {83, kBit, "cfgt5_213"},  {84, kBit, "cfgt5_214"},
    {85, kBit, "cfgt5_215"},  {88, "1b", "cfgt5_216"},  {89, kBit, "cfgt5_217"},  {90, kBit, "cfgt5_218"},
    {91, kBit, "cfgt5_219"},  {92, kBit, "cfgt5_220"},  {93, kBit, "cfgt5_221"},  {94, kBit, "cfgt5_222"},
    {95, kBit, "cfgt5_223"},  {96, kBit, "cfgt5_224"},  {97, "1b", "cfgt5_225"},  {98, kBit, "cfgt5_226"},
    {99, kBit, "cfgt5_227"},  {100, kBit, "cfgt5_228"}, {101, kBit, "cfgt5_229"}, {102, kBit, "cfgt5_230"},
    {103, kBit, "cfgt5_231"}, {104, kBit, "cfgt5_232"}, {105, kBit, "cfgt5_233"}, {106, "1b", "cfgt5_234"},
    {107, kBit, "cfgt5_235"}, {108, kBit, "cfgt5_236"}, {109, kBit, "cfgt5_237"}, {110, kBit, "cfgt5_238"},
    {111, kBit, "cfgt5_239"}, {112, kBit, "cfgt5_240"}, {115, "1b", "cfgt5_241"}, {116, kBit, "cfgt5_242"},
    {117, kBit, "cfgt5_243"}, {118, kBit, "cfgt5_244"}, {119, kBit, "cfgt5_245"}, {120, kBit, "cfgt5_246"},
    {121, kBit, "cfgt5_247"}, {122, kBit, "cfgt5_248"}, {123, kBit, "cfgt5_249"}, {124, "1b", "cfgt5_250"},
    {125, kBit, "cfgt5_251"}, {126, kBit, "cfgt5_252"}, {127, kBit, "cfgt5_253"}, {128, kBit, "cfgt5_254"},
    {129, kBit, "cfgt5_255"}, {130, kBit, "cfgt5_256"}, {133, "1b", "cfgt5_257"}, {134, kBit, "cfgt5_258"},
    {135, kBit, "cfgt5_259"}, {136, kBit, "cfgt5_260"}, {137, kBit, "cfgt5_261"}, {138, kBit, "cfgt5_262"},
    {139, kBit, "cfgt5_263"}, {142, "1b", "cfgt5_264"}, {143, kBit, "cfgt5_265"}, {144, kBit, "cfgt5_266"},
    {145, kBit, "cfgt5_267"}, {146, kBit, "cfgt5_268"}, {147, kBit, "cfgt5_269"}, {148, kBit, "cfgt5_270"},
    {151, "4u", "cfgt5_271"}, {152, "4u", "cfgt5_272"}, {153, "4u", "cfgt5_273"}, {154, "4u", "cfgt5_274"},
    {155, "4u", "cfgt5_275"}, {156, "2u", "cfgt5_276"}, {157, "2u", "cfgt5_277"}, {158, "2u", "cfgt5_278"},
    {159, "4u", "cfgt5_279"}, {160, "1u", "cfgt5_280"}, {161, "1u", "cfgt5_281"}, {162, "1u", "cfgt5_282"},
    {163, "2u", "cfgt5_283"}, {164, "2u", "cfgt5_284"}, {165, "2u", "cfgt5_285"}, {166, "2u", "cfgt5_286"},
    {167, "2u", "cfgt5_287"}, {168, "2u", "cfgt5_288"}, {169, "1u", "cfgt5_289"}, {170, "1u", "cfgt5_290"},
    {171, "1u", "cfgt5_291"}, {172, "2u", "cfgt5_292"}, {173, "2u", "cfgt5_293"}, {174, "1s", "cfgt5_294"},
    {175, "2u", "cfgt5_295"}, {176, "1u", "cfgt5_296"}, {177, "1u", "cfgt5_297"}, {178, "2s", "cfgt5_298"},
    {179, "2s", "cfgt5_299"}, {180, "2u", "cfgt5_300"}, {181, "2u", "cfgt5_301"}, {182, "2s", "cfgt5_302"},
    {183, "2s", "cfgt5_303"}, {184, "2s", "cfgt5_304"}, {185, "2u", "cfgt5_305"}, {186, "2u", "cfgt5_306"},
    {187, "4u", "cfgt5_307"}, {188, "4u", "cfgt5_308"}, {189, "4u", "cfgt5_309"}, {190, "4u", "cfgt5_310"},
    {191, "2u", "cfgt5_311"}, {192, "2u", "cfgt5_312"}, {193, "1u", "cfgt5_313"}, {194, "1u", "cfgt5_314"},
    {195, "1u", "cfgt5_315"}, {196, "2s", "cfgt5_316"}, {197, "2u", "cfgt5_317"}, {198, "1s", "cfgt5_318"},
    {199, "1s", "cfgt5_319"}, {200, "2u", "cfgt5_320"}, {201, "2u", "cfgt5_321"}, {202, "1u", "cfgt5_322"},
    {203, "2s", "cfgt5_323"}, {204, "2u", "cfgt5_324"}, {205, "1u", "cfgt5_325"}, {206, "2u", "cfgt5_326"},
    {207, "2u", "cfgt5_327"}, {208, "1u", "cfgt5_328"}, {209, "1u", "cfgt5_329"}, {210, "2s", "cfgt5_330"},
    {211, "2u", "cfgt5_331"}, {212, "2u", "cfgt5_332"}, {213, "2u", "cfgt5_333"}, {231, "4u", "cfgt5_334"},
    {232, "2u", "cfgt5_335"}, {233, "4s", "cfgt5_336"}, {234, "2s", "cfgt5_337"}, {235, "2u", "cfgt5_338"},
    {236, "2u", "cfgt5_339"}, {237, "2u", "cfgt5_340"}, {238, "2u", "cfgt5_341"}, {239, "2u", "cfgt5_429"},
    {240, "2u", "cfgt5_430"}, {241, "4u", "cfgt5_431"}, {242, "4u", "cfgt5_432"}, {243, "4u", "cfgt5_433"},
    {244, "2u", "cfgt5_434"}, {245, "2u", "cfgt5_435"}, {246, "2s", "cfgt5_436"}, {247, "2s", "cfgt5_437"},
    {248, "2u", "cfgt5_438"}, {249, "4u", "cfgt5_439"}, {250, "1u", "cfgt5_440"}, {251, "4u", "cfgt5_441"},
};

constexpr CatalogueRow kCustom[] = {
    {1, "", "cfgt5_342"}, {2, "", "cfgt5_343"},  {3, "", "cfgt5_344"}, {4, "", "cfgt5_345"},
    {5, "", "cfgt5_346"}, {6, "", "cfgt5_347"},  {7, "", "cfgt5_348"}, {8, "", "cfgt5_349"},
    {9, "", "cfgt5_350"}, {10, "", "cfgt5_351"},
};

} // namespace

constexpr std::span<const CatalogueRow> kCounterRows = kCounter;
constexpr std::array<ParamCatalogue, 3> kCanCatalogues = {{
    {"C1", "cfgt5_010", kVehicle},
    {"C2", "cfgt5_011", kMachines},
    {"C3", "cfgt5_012", kCustom},
}};

} // namespace vlk
