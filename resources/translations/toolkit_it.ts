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
</TS>
