<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="wb_event_001"><translation>Power on</translation></message>
    <message id="wb_event_002"><translation>Point by time</translation></message>
    <message id="wb_event_003"><translation>Point by distance</translation></message>
    <message id="wb_event_004"><translation>Point by change of course</translation></message>
    <message id="wb_event_005"><translation>Point by time, parked</translation></message>
    <message id="wb_event_006"><translation>Present state on request</translation></message>
    <message id="wb_event_010"><translation>Ignition on</translation></message>
    <message id="wb_event_011"><translation>Ignition off</translation></message>
    <message id="wb_event_012"><translation>Start of movement</translation></message>
    <message id="wb_event_013"><translation>Stop</translation></message>
    <message id="wb_event_014"><translation>Speed limit exceeded</translation></message>
    <message id="wb_event_020"><translation>Door opened</translation></message>
    <message id="wb_event_021"><translation>Door closed</translation></message>
    <message id="wb_event_030"><translation>Weak shock (SH1)</translation></message>
    <message id="wb_event_031"><translation>Strong shock (SH2)</translation></message>
    <message id="wb_event_040"><translation>Start of filling</translation></message>
    <message id="wb_event_041"><translation>End of filling</translation></message>
    <message id="wb_event_050"><translation>Guard on</translation></message>
    <message id="wb_event_051"><translation>Guard off</translation></message>
    <message id="wb_event_052"><translation>Output on</translation></message>
    <message id="wb_event_053"><translation>Output off</translation></message>
    <message id="wb_event_054"><translation>Mileage set</translation></message>
    <message id="wb_event_055"><translation>Configuration changed</translation></message>
    <message id="wb_event_060"><translation>1-Wire key touched</translation></message>
    <message id="wb_event_061"><translation>RFID tag read</translation></message>
    <message id="wb_event_unknown"><translation>Event</translation></message>
    <message id="wb_refused_detached"><translation>The tracker is not connected.</translation></message>
    <message id="wb_refused_large"><translation>The file is too large for the tracker, bytes:</translation></message>
    <message id="wb_refused_malformed"><translation>The file is damaged, markup error:</translation></message>
    <message id="wb_refused_memory"><translation>Cannot write to the tracker's memory:</translation></message>
    <message id="wb_refused_model"><translation>Configuration of another model:</translation></message>
    <message id="wb_refused_root"><translation>Not a configuration file, root element:</translation></message>
    <message id="wb_refused_silence"><translation>The tracker does not answer.</translation></message>
    <message id="wb_refused_unreadable"><translation>The file cannot be read:</translation></message>
</context>
</TS>
