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
<context>
    <name>orn::application_log</name>
    <message>
        <source>Application Log</source>
        <translation>Anwendungsprotokoll</translation>
    </message>
    <message>
        <source>Application logs saved</source>
        <translation>Anwendungsprotokoll gespeichert</translation>
    </message>
    <message>
        <source>Can't save the application logs to
%1

You might not have write permission or the disk might be full.</source>
        <translation>Das Anwendungsprotokoll kann nicht gespeichert werden unter
%1

Möglicherweise fehlt die Schreibberechtigung, oder der Datenträger ist voll.</translation>
    </message>
    <message>
        <source>Clear application logs</source>
        <translation>Anwendungsprotokoll leeren</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>Protokoll leeren</translation>
    </message>
    <message>
        <source>Do you really want to clear the application logs?</source>
        <translation>Soll das Anwendungsprotokoll wirklich geleert werden?</translation>
    </message>
    <message>
        <source>Failed to save application logs</source>
        <translation>Anwendungsprotokoll konnte nicht gespeichert werden</translation>
    </message>
    <message>
        <source>Failed to write the complete application logs to
%1

Could only write %2/%3 bytes. The disk might be full.</source>
        <translation>Das Anwendungsprotokoll konnte nicht vollständig geschrieben werden nach
%1

Nur %2/%3 Bytes wurden geschrieben. Der Datenträger ist möglicherweise voll.</translation>
    </message>
    <message>
        <source>Network report</source>
        <translation>Netzwerkbericht</translation>
    </message>
    <message>
        <source>Save to disk</source>
        <translation>Auf Festplatte speichern</translation>
    </message>
    <message>
        <source>The application logs were saved to
%1</source>
        <translation>Das Anwendungsprotokoll wurde gespeichert unter
%1</translation>
    </message>
</context>
<context>
    <name>orn::dialog_3rd_part_lib_info</name>
    <message>
        <source>%1 uses the following open source and/or 3rd party libraries:</source>
        <translation>%1 verwendet die folgenden quelloffenen Bibliotheken bzw. Bibliotheken von Drittanbietern:</translation>
    </message>
    <message>
        <source>About 3rd party libraries</source>
        <translation>Über Bibliotheken von Drittanbietern</translation>
    </message>
    <message>
        <source>This software links to Qt dynamically under the terms of the GNU Lesser&lt;br&gt;General Public License (LGPL). Qt's source code and the license text are&lt;br&gt;available at %1; the source code of this version at&lt;br&gt;%2.</source>
        <translation>Diese Software bindet Qt dynamisch unter den Bedingungen der GNU Lesser&lt;br&gt;General Public License (LGPL) ein. Der Quellcode von Qt und der Lizenztext sind&lt;br&gt;unter %1 erhältlich, der Quellcode dieser Version unter&lt;br&gt;%2.</translation>
    </message>
</context>
<context>
    <name>orn::dialog_about</name>
    <message>
        <source> - %1 Bit</source>
        <translation> - %1 Bit</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Click here for 3rd party library information</source>
        <translation>Hier klicken für Informationen zu Bibliotheken von Drittanbietern</translation>
    </message>
    <message>
        <source>This software uses FreeImage, an open source image library, under the&lt;br&gt;FreeImage Public License. Details and source code: %1</source>
        <translation>Diese Software verwendet FreeImage, eine quelloffene Bildbibliothek, unter der&lt;br&gt;FreeImage Public License. Einzelheiten und Quellcode: %1</translation>
    </message>
    <message>
        <source>This software uses Little CMS, an open source color management library&lt;br&gt;under the MIT license. Details and source code: %1</source>
        <translation>Diese Software verwendet Little CMS, eine quelloffene Farbmanagement-Bibliothek&lt;br&gt;unter der MIT-Lizenz. Einzelheiten und Quellcode: %1</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>Version:</translation>
    </message>
</context>
</TS>
