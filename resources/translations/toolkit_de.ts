<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>%1 encountered a fatal error and must be terminated:
%2</source>
        <translation>Es ist ein nicht behebbarer Fehler in %1 aufgetreten. Die Anwendung wird jetzt Beendet.
%2</translation>
    </message>
    <message>
        <source>Application language changed</source>
        <translation>Anwendungssprache geändert</translation>
    </message>
    <message>
        <source>Continue working</source>
        <translation>Weiterarbeiten</translation>
    </message>
    <message>
        <source>Fatal error</source>
        <translation>Nicht behebbarer Fehler</translation>
    </message>
    <message>
        <source>Quit now</source>
        <translation>Anwendung jetzt Beenden</translation>
    </message>
    <message>
        <source>The application language has been changed.
The application needs to be restarted to use the new language.</source>
        <translation>Die Sprache der Benutzeroberfläche wurde geändert.
Die Anwendung muss neu gestartet werden um die neue Sprache zu verwenden.</translation>
    </message>
</context>
</TS>
