<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>%1 encountered a fatal error and must be terminated:
%2</source>
        <translation>%1 ha sufrido un error fatal y debe cerrarse:
%2</translation>
    </message>
    <message>
        <source>Application language changed</source>
        <translation>Idioma de la aplicación cambiado</translation>
    </message>
    <message>
        <source>Continue working</source>
        <translation>Seguir trabajando</translation>
    </message>
    <message>
        <source>Fatal error</source>
        <translation>Error fatal</translation>
    </message>
    <message>
        <source>Quit now</source>
        <translation>Salir ahora</translation>
    </message>
    <message>
        <source>The application language has been changed.
The application needs to be restarted to use the new language.</source>
        <translation>Se ha cambiado el idioma de la aplicación.
Es necesario reiniciar la aplicación para usar el nuevo idioma.</translation>
    </message>
</context>
</TS>
