<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="abbr_003"><translation>s</translation></message>
    <message id="cfgt1_110"><translation>Server connection test</translation></message>
    <message id="cfgt1_111"><translation>Waiting time</translation></message>
    <message id="wrd_003"><translation>OK</translation></message>
    <message id="wrd_031"><translation>Cancel</translation></message>
</context>
</TS>
