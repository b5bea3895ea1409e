<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name></name>
    <message id="abbr_003"><translation>с</translation></message>
    <message id="cfgt1_110"><translation>Проверка связи с сервером</translation></message>
    <message id="cfgt1_111"><translation>Время ожидания</translation></message>
    <message id="wrd_003"><translation>ОК</translation></message>
    <message id="wrd_031"><translation>Отмена</translation></message>
</context>
</TS>
