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
</TS>
