<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message>
        <source>Camera calibration modified by preset</source>
        <translation>Kamerakalibrierung durch Preset verändert</translation>
    </message>
    <message>
        <source>Can't read preset</source>
        <translation>Preset kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Konvertieren</translation>
    </message>
    <message>
        <source>Convert All</source>
        <translation>Alle Konvertieren</translation>
    </message>
    <message>
        <source>Display the help page for this program</source>
        <translation>Die Hilfeseite für dieses Programm anzeigen</translation>
    </message>
    <message>
        <source>LUT</source>
        <translation>LUT</translation>
    </message>
    <message>
        <source>Lightroom Templates(*.lrtemplate *.xmp)</source>
        <translation>Lightroom Presets(*.lrtemplate *.xmp)</translation>
    </message>
    <message>
        <source>Load Lightroom Template</source>
        <translation>Lightroom Preset Laden</translation>
    </message>
    <message>
        <source>Load Lightroom preset(s) and convert to Capture One.</source>
        <translation>Lightroom Preset(s) laden und zu Capture One konvertieren.</translation>
    </message>
    <message>
        <source>Name Capture One Stylepack</source>
        <translation>Capture One Stylepack Benennen</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>Ausgabeordner</translation>
    </message>
    <message>
        <source>Select the folder where the converted Lightroom presets will be saved.</source>
        <translation>Ausgabeordner für konvertierte Lightroom Presets wählen.</translation>
    </message>
    <message>
        <source>Show information about this program</source>
        <translation>Informationen über die Anwendung anzeigen</translation>
    </message>
    <message>
        <source>Show settings dialog</source>
        <translation>Einstellungen anzeigen</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Skip All</source>
        <translation>Alle Überspringen</translation>
    </message>
    <message>
        <source>The preset %1 contains values for the camera calibration.&lt;br/&gt;These settings may influence the resulting look significantly but will not be converted to Capture One.&lt;br/&gt;We recommend to reserve these parameters for the calibration of your camera and not for creating creative looks.</source>
        <translation>Das Preset %1 enthält Werte für die Kamerakalibrierung.&lt;br/&gt;Kalibrierungseintellungen können den Look erheblich beeinflussen, werden jedoch nicht nach Capture One konvertiert.&lt;br/&gt;Wir empfehlen die Kalibrierungseinstellungen für die Kamerakalibrierung vorzubehalten und nicht zum Erstellen von Looks zu verwenden.</translation>
    </message>
    <message>
        <source>Unsupported parameters in preset</source>
        <translation>Nicht unterstützte Parameter im PReset enthalten</translation>
    </message>
    <message>
        <source>Unsupported preset format</source>
        <translation>Nicht unterstütztes Presetformat</translation>
    </message>
    <message>
        <source>White balance modified by preset</source>
        <translation>Weißabgleich durch Preset verändert</translation>
    </message>
    <message>
        <source>Your preset %1 contains values for the white balance.&lt;br/&gt;&lt;br/&gt;Equal white balance values can lead to different results in Capture One.&lt;br/&gt;Thus Lookwright translates the values instead of adapting them visually.&lt;br/&gt;Anyway we recommend to keep the white balance settings for neutralizing the image instead of using them for creating a look.&lt;br/&gt;For this reason they should not be inside a preset.</source>
        <translation>Das Preset %1 enthält Werte für den Weißabgleich.&lt;br/&gt;&lt;/br/&gt;Da in Capture One die selben Weißabgleich-Einstellungen zu unterschiedlich starken Einfärbungen führen,&lt;br/&gt;werden die Werte beim Konvertieren nur übernommen und nicht optisch angeglichen.&lt;br/&gt;Ohnehin empfiehlt es sich den Weißabgleich zum Neutralisieren des Bildes vorzubehalten und nicht zum Kreieren eines Looks zu verwenden. Deshalb sollte der Weißabgleich nicht in einem Preset gespeichert werden.</translation>
    </message>
    <message>
        <source>Your preset %1 is in a format Lookwright can't convert.</source>
        <translation>Dein Preset %1 hat ein Format, welches von Lookwright nicht konvertiert werden kann.</translation>
    </message>
</context>
<context>
    <name>dialog_settings</name>
    <message>
        <source>Color Space</source>
        <translation>Farbraum</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Separate Styles</source>
        <translation>Separate Styles</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Stylepack</source>
        <translation>Stylepack</translation>
    </message>
    <message>
        <source>Stylepack with Category</source>
        <translation>Stylepack mit Kategorie</translation>
    </message>
</context>
</TS>
