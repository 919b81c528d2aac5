<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>%1 encountered a fatal error and must be terminated:
%2</source>
        <translation>%1 a rencontré une erreur fatale et doit être arrêté :
%2</translation>
    </message>
    <message>
        <source>Application language changed</source>
        <translation>Langue de l'application modifiée</translation>
    </message>
    <message>
        <source>Continue working</source>
        <translation>Continuer à travailler</translation>
    </message>
    <message>
        <source>Fatal error</source>
        <translation>Erreur fatale</translation>
    </message>
    <message>
        <source>Quit now</source>
        <translation>Quitter maintenant</translation>
    </message>
    <message>
        <source>The application language has been changed.
The application needs to be restarted to use the new language.</source>
        <translation>La langue de l'application a été modifiée.
L'application doit être redémarrée pour utiliser la nouvelle langue.</translation>
    </message>
</context>
<context>
    <name>orn::application_log</name>
    <message>
        <source>Application Log</source>
        <translation>Journal de l'application</translation>
    </message>
    <message>
        <source>Application logs saved</source>
        <translation>Journal de l'application enregistré</translation>
    </message>
    <message>
        <source>Can't save the application logs to
%1

You might not have write permission or the disk might be full.</source>
        <translation>Impossible d'enregistrer le journal de l'application dans
%1

Vous n'avez peut-être pas le droit d'écriture, ou le disque est peut-être plein.</translation>
    </message>
    <message>
        <source>Clear application logs</source>
        <translation>Effacer le journal de l'application</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>Effacer le journal</translation>
    </message>
    <message>
        <source>Do you really want to clear the application logs?</source>
        <translation>Voulez-vous vraiment effacer le journal de l'application ?</translation>
    </message>
    <message>
        <source>Failed to save application logs</source>
        <translation>Échec de l'enregistrement du journal de l'application</translation>
    </message>
    <message>
        <source>Failed to write the complete application logs to
%1

Could only write %2/%3 bytes. The disk might be full.</source>
        <translation>Impossible d'écrire le journal complet de l'application dans
%1

Seuls %2/%3 octets ont pu être écrits. Le disque est peut-être plein.</translation>
    </message>
    <message>
        <source>Network report</source>
        <translation>Rapport réseau</translation>
    </message>
    <message>
        <source>Save to disk</source>
        <translation>Enregistrer sur le disque</translation>
    </message>
    <message>
        <source>The application logs were saved to
%1</source>
        <translation>Le journal de l'application a été enregistré dans
%1</translation>
    </message>
</context>
<context>
    <name>orn::dialog_3rd_part_lib_info</name>
    <message>
        <source>%1 uses the following open source and/or 3rd party libraries:</source>
        <translation>%1 utilise les bibliothèques libres ou tierces suivantes :</translation>
    </message>
    <message>
        <source>About 3rd party libraries</source>
        <translation>À propos des bibliothèques tierces</translation>
    </message>
    <message>
        <source>This software links to Qt dynamically under the terms of the GNU Lesser&lt;br&gt;General Public License (LGPL). Qt's source code and the license text are&lt;br&gt;available at %1; the source code of this version at&lt;br&gt;%2.</source>
        <translation>Ce logiciel est lié dynamiquement à Qt selon les termes de la GNU Lesser&lt;br&gt;General Public License (LGPL). Le code source de Qt et le texte de la licence sont&lt;br&gt;disponibles sur %1 ; le code source de cette version sur&lt;br&gt;%2.</translation>
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
        <translation>À propos</translation>
    </message>
    <message>
        <source>Click here for 3rd party library information</source>
        <translation>Cliquez ici pour les informations sur les bibliothèques tierces</translation>
    </message>
    <message>
        <source>This software uses FreeImage, an open source image library, under the&lt;br&gt;FreeImage Public License. Details and source code: %1</source>
        <translation>Ce logiciel utilise FreeImage, une bibliothèque d'images libre, sous la&lt;br&gt;FreeImage Public License. Détails et code source : %1</translation>
    </message>
    <message>
        <source>This software uses Little CMS, an open source color management library&lt;br&gt;under the MIT license. Details and source code: %1</source>
        <translation>Ce logiciel utilise Little CMS, une bibliothèque libre de gestion des couleurs&lt;br&gt;sous licence MIT. Détails et code source : %1</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>Version :</translation>
    </message>
</context>
</TS>
