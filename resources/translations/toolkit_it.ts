<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>%1 encountered a fatal error and must be terminated:
%2</source>
        <translation>%1 ha riscontrato un errore fatale e deve essere chiuso:
%2</translation>
    </message>
    <message>
        <source>Application language changed</source>
        <translation>Lingua dell'applicazione modificata</translation>
    </message>
    <message>
        <source>Continue working</source>
        <translation>Continua a lavorare</translation>
    </message>
    <message>
        <source>Fatal error</source>
        <translation>Errore fatale</translation>
    </message>
    <message>
        <source>Quit now</source>
        <translation>Esci ora</translation>
    </message>
    <message>
        <source>The application language has been changed.
The application needs to be restarted to use the new language.</source>
        <translation>La lingua dell'applicazione è stata modificata.
È necessario riavviare l'applicazione per usare la nuova lingua.</translation>
    </message>
</context>
<context>
    <name>orn::application_log</name>
    <message>
        <source>Application Log</source>
        <translation>Registro dell'applicazione</translation>
    </message>
    <message>
        <source>Application logs saved</source>
        <translation>Registro dell'applicazione salvato</translation>
    </message>
    <message>
        <source>Can't save the application logs to
%1

You might not have write permission or the disk might be full.</source>
        <translation>Impossibile salvare il registro dell'applicazione in
%1

Potresti non avere i permessi di scrittura, oppure il disco potrebbe essere pieno.</translation>
    </message>
    <message>
        <source>Clear application logs</source>
        <translation>Svuota il registro dell'applicazione</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>Svuota registro</translation>
    </message>
    <message>
        <source>Do you really want to clear the application logs?</source>
        <translation>Vuoi davvero svuotare il registro dell'applicazione?</translation>
    </message>
    <message>
        <source>Failed to save application logs</source>
        <translation>Impossibile salvare il registro dell'applicazione</translation>
    </message>
    <message>
        <source>Failed to write the complete application logs to
%1

Could only write %2/%3 bytes. The disk might be full.</source>
        <translation>Impossibile scrivere il registro completo dell'applicazione in
%1

Scritti solo %2/%3 byte. Il disco potrebbe essere pieno.</translation>
    </message>
    <message>
        <source>Network report</source>
        <translation>Rapporto di rete</translation>
    </message>
    <message>
        <source>Save to disk</source>
        <translation>Salva su disco</translation>
    </message>
    <message>
        <source>The application logs were saved to
%1</source>
        <translation>Il registro dell'applicazione è stato salvato in
%1</translation>
    </message>
</context>
<context>
    <name>orn::dialog_3rd_part_lib_info</name>
    <message>
        <source>%1 uses the following open source and/or 3rd party libraries:</source>
        <translation>%1 usa le seguenti librerie open source e/o di terze parti:</translation>
    </message>
    <message>
        <source>About 3rd party libraries</source>
        <translation>Informazioni sulle librerie di terze parti</translation>
    </message>
    <message>
        <source>This software links to Qt dynamically under the terms of the GNU Lesser&lt;br&gt;General Public License (LGPL). Qt's source code and the license text are&lt;br&gt;available at %1; the source code of this version at&lt;br&gt;%2.</source>
        <translation>Questo software si collega a Qt in modo dinamico secondo i termini della GNU Lesser&lt;br&gt;General Public License (LGPL). Il codice sorgente di Qt e il testo della licenza sono&lt;br&gt;disponibili su %1; il codice sorgente di questa versione su&lt;br&gt;%2.</translation>
    </message>
</context>
<context>
    <name>orn::dialog_about</name>
    <message>
        <source> - %1 Bit</source>
        <translation> - %1 bit</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Click here for 3rd party library information</source>
        <translation>Fai clic qui per informazioni sulle librerie di terze parti</translation>
    </message>
    <message>
        <source>This software uses FreeImage, an open source image library, under the&lt;br&gt;FreeImage Public License. Details and source code: %1</source>
        <translation>Questo software usa FreeImage, una libreria open source per le immagini, con la&lt;br&gt;FreeImage Public License. Dettagli e codice sorgente: %1</translation>
    </message>
    <message>
        <source>This software uses Little CMS, an open source color management library&lt;br&gt;under the MIT license. Details and source code: %1</source>
        <translation>Questo software usa Little CMS, una libreria open source per la gestione del colore&lt;br&gt;con licenza MIT. Dettagli e codice sorgente: %1</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>Versione:</translation>
    </message>
</context>
</TS>
