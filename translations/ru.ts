<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name></name>
    <message id="wb_event_001"><translation>Включение питания</translation></message>
    <message id="wb_event_002"><translation>Точка по времени</translation></message>
    <message id="wb_event_003"><translation>Точка по расстоянию</translation></message>
    <message id="wb_event_004"><translation>Точка по изменению курса</translation></message>
    <message id="wb_event_005"><translation>Точка по времени на стоянке</translation></message>
    <message id="wb_event_006"><translation>Текущее состояние по запросу</translation></message>
    <message id="wb_event_010"><translation>Зажигание включено</translation></message>
    <message id="wb_event_011"><translation>Зажигание выключено</translation></message>
    <message id="wb_event_012"><translation>Начало движения</translation></message>
    <message id="wb_event_013"><translation>Остановка</translation></message>
    <message id="wb_event_014"><translation>Превышение скорости</translation></message>
    <message id="wb_event_020"><translation>Дверь открыта</translation></message>
    <message id="wb_event_021"><translation>Дверь закрыта</translation></message>
    <message id="wb_event_030"><translation>Слабый удар (SH1)</translation></message>
    <message id="wb_event_031"><translation>Сильный удар (SH2)</translation></message>
    <message id="wb_event_040"><translation>Начало заправки</translation></message>
    <message id="wb_event_041"><translation>Окончание заправки</translation></message>
    <message id="wb_event_050"><translation>Постановка под охрану</translation></message>
    <message id="wb_event_051"><translation>Снятие с охраны</translation></message>
    <message id="wb_event_052"><translation>Выход включён</translation></message>
    <message id="wb_event_053"><translation>Выход выключен</translation></message>
    <message id="wb_event_054"><translation>Установлен пробег</translation></message>
    <message id="wb_event_055"><translation>Изменена конфигурация</translation></message>
    <message id="wb_event_060"><translation>Приложен ключ 1-Wire</translation></message>
    <message id="wb_event_061"><translation>Прочитана метка RFID</translation></message>
    <message id="wb_event_unknown"><translation>Событие</translation></message>
    <message id="wb_refused_detached"><translation>Трекер отключён.</translation></message>
    <message id="wb_refused_large"><translation>Файл слишком велик для трекера, байт:</translation></message>
    <message id="wb_refused_malformed"><translation>Файл повреждён, ошибка разметки:</translation></message>
    <message id="wb_refused_memory"><translation>Не удалось записать в память трекера:</translation></message>
    <message id="wb_refused_model"><translation>Конфигурация другой модели:</translation></message>
    <message id="wb_refused_root"><translation>Файл не является конфигурацией, корневой элемент:</translation></message>
    <message id="wb_refused_silence"><translation>Трекер не отвечает.</translation></message>
    <message id="wb_refused_unreadable"><translation>Файл не читается:</translation></message>
</context>
</TS>
