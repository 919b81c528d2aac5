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
<context>
    <name>orn::application_log</name>
    <message>
        <source>Application Log</source>
        <translation>Registro de la aplicación</translation>
    </message>
    <message>
        <source>Application logs saved</source>
        <translation>Registro de la aplicación guardado</translation>
    </message>
    <message>
        <source>Can't save the application logs to
%1

You might not have write permission or the disk might be full.</source>
        <translation>No se puede guardar el registro de la aplicación en
%1

Puede que no tenga permiso de escritura o que el disco esté lleno.</translation>
    </message>
    <message>
        <source>Clear application logs</source>
        <translation>Vaciar el registro de la aplicación</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>Vaciar registro</translation>
    </message>
    <message>
        <source>Do you really want to clear the application logs?</source>
        <translation>¿Seguro que quiere vaciar el registro de la aplicación?</translation>
    </message>
    <message>
        <source>Failed to save application logs</source>
        <translation>No se pudo guardar el registro de la aplicación</translation>
    </message>
    <message>
        <source>Failed to write the complete application logs to
%1

Could only write %2/%3 bytes. The disk might be full.</source>
        <translation>No se pudo escribir el registro completo de la aplicación en
%1

Solo se escribieron %2/%3 bytes. Puede que el disco esté lleno.</translation>
    </message>
    <message>
        <source>Network report</source>
        <translation>Informe de red</translation>
    </message>
    <message>
        <source>Save to disk</source>
        <translation>Guardar en disco</translation>
    </message>
    <message>
        <source>The application logs were saved to
%1</source>
        <translation>El registro de la aplicación se guardó en
%1</translation>
    </message>
</context>
<context>
    <name>orn::dialog_3rd_part_lib_info</name>
    <message>
        <source>%1 uses the following open source and/or 3rd party libraries:</source>
        <translation>%1 utiliza las siguientes bibliotecas de código abierto o de terceros:</translation>
    </message>
    <message>
        <source>About 3rd party libraries</source>
        <translation>Acerca de las bibliotecas de terceros</translation>
    </message>
    <message>
        <source>This software links to Qt dynamically under the terms of the GNU Lesser&lt;br&gt;General Public License (LGPL). Qt's source code and the license text are&lt;br&gt;available at %1; the source code of this version at&lt;br&gt;%2.</source>
        <translation>Este software enlaza Qt de forma dinámica según los términos de la GNU Lesser&lt;br&gt;General Public License (LGPL). El código fuente de Qt y el texto de la licencia están&lt;br&gt;disponibles en %1; el código fuente de esta versión, en&lt;br&gt;%2.</translation>
    </message>
</context>
<context>
    <name>orn::dialog_about</name>
    <message>
        <source> - %1 Bit</source>
        <translation> - %1 bits</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Click here for 3rd party library information</source>
        <translation>Haga clic aquí para ver información sobre bibliotecas de terceros</translation>
    </message>
    <message>
        <source>This software uses FreeImage, an open source image library, under the&lt;br&gt;FreeImage Public License. Details and source code: %1</source>
        <translation>Este software utiliza FreeImage, una biblioteca de imágenes de código abierto, bajo la&lt;br&gt;FreeImage Public License. Detalles y código fuente: %1</translation>
    </message>
    <message>
        <source>This software uses Little CMS, an open source color management library&lt;br&gt;under the MIT license. Details and source code: %1</source>
        <translation>Este software utiliza Little CMS, una biblioteca de gestión del color de código abierto&lt;br&gt;bajo la licencia MIT. Detalles y código fuente: %1</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>Versión:</translation>
    </message>
</context>
</TS>
