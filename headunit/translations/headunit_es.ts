<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name></name>
    <message id="3">
        <source>Flat</source>
        <translation>Plano</translation>
    </message>
    <message id="14">
        <source>Apple CarPlay</source>
        <translation>Apple CarPlay</translation>
    </message>
    <message id="15">
        <source>Android Auto</source>
        <translation>Android Auto</translation>
    </message>
    <message id="16">
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message id="229">
        <source>Classic</source>
        <translation>Clásica</translation>
    </message>
    <message id="231">
        <source>Subwoofer</source>
        <translation>Subwoofer</translation>
    </message>
    <message id="232">
        <source>Dynamic</source>
        <translation>Dinámico</translation>
    </message>
    <message id="233">
        <source>Pop</source>
        <translation>Pop</translation>
    </message>
    <message id="234">
        <source>Rock</source>
        <translation>Rock</translation>
    </message>
    <message id="235">
        <source>Hip Hop</source>
        <translation>Hip hop</translation>
    </message>
    <message id="241">
        <source>Jazz</source>
        <translation>Jazz</translation>
    </message>
    <message id="262">
        <source>Rear</source>
        <translation>Trasero</translation>
    </message>
    <message id="361">
        <source>Radio</source>
        <translation>Radio</translation>
    </message>
    <message id="427">
        <source>SiriusXM</source>
        <translation>SiriusXM</translation>
    </message>
    <message id="439">
        <source>Loudness</source>
        <translation>Sonoridad</translation>
    </message>
    <message id="681">
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message id="969">
        <source>This will reset all of your audio settings.</source>
        <translation>Restablece todos los ajustes de audio.</translation>
    </message>
    <message id="970">
        <source>Do you want to proceed?</source>
        <translation>¿Desea continuar?</translation>
    </message>
    <message id="971">
        <source>Yes, Reset my Audio Settings</source>
        <translation>Sí, restablecer los ajustes</translation>
    </message>
    <message id="972">
        <source>Alert</source>
        <translation>Atención</translation>
    </message>
    <message id="973">
        <source>Reset Successful</source>
        <translation>Ajustes restablecidos</translation>
    </message>
    <message id="1065">
        <source>General</source>
        <translation>General</translation>
    </message>
    <message id="1066">
        <source>Equalizer</source>
        <translation>Ecualizador</translation>
    </message>
    <message id="1067">
        <source>Factory EQ</source>
        <translation>EQ de fábrica</translation>
    </message>
    <message id="1068">
        <source>Crossover</source>
        <translation>Filtro de cruce</translation>
    </message>
    <message id="1069">
        <source>Timing</source>
        <translation>Alineación temporal</translation>
    </message>
    <message id="1070">
        <source>Audio Settings</source>
        <translation>Ajustes de audio</translation>
    </message>
    <message id="1071">
        <source>Volume Settings</source>
        <translation>Ajustes de volumen</translation>
    </message>
    <message id="1072">
        <source>Source Gain</source>
        <translation>Ganancia de fuentes</translation>
    </message>
    <message id="1073">
        <source>Flat</source>
        <translation>Plano</translation>
    </message>
    <message id="1074">
        <source>Off</source>
        <translation>Apagado</translation>
    </message>
    <message id="1076">
        <source>Front</source>
        <translation>Delantero</translation>
    </message>
    <message id="1077">
        <source>Slope</source>
        <translation>Pendiente</translation>
    </message>
    <message id="1078">
        <source>Frequency</source>
        <translation>Frecuencia</translation>
    </message>
    <message id="1079">
        <source>Level</source>
        <translation>Nivel</translation>
    </message>
    <message id="1081">
        <source>Source Gain</source>
        <translation>Ganancia de fuentes</translation>
    </message>
    <message id="1082">
        <source>Volume Settings</source>
        <translation>Ajustes de volumen</translation>
    </message>
    <message id="1083">
        <source>Reset Audio Settings</source>
        <translation>Restablecer audio</translation>
    </message>
    <message id="1084">
        <source>Bluetooth Music</source>
        <translation>Música Bluetooth</translation>
    </message>
    <message id="20001">
        <source>Audio Settings</source>
        <translation>Ajustes de audio</translation>
    </message>
    <message id="20002">
        <source>Car</source>
        <translation>Vehículo</translation>
    </message>
    <message id="20003">
        <source>Source</source>
        <translation>Fuente</translation>
    </message>
    <message id="20004">
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message id="20005">
        <source>Level</source>
        <translation>Nivel</translation>
    </message>
    <message id="20006">
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message id="20007">
        <source>Volume Settings</source>
        <translation>Ajustes de volumen</translation>
    </message>
    <message id="20008">
        <source>Start Call</source>
        <translation>Iniciar llamada</translation>
    </message>
    <message id="20009">
        <source>End Call</source>
        <translation>Finalizar llamada</translation>
    </message>
    <message id="20010">
        <source>Call in progress</source>
        <translation>Llamada en curso</translation>
    </message>
    <message id="20011">
        <source>Main</source>
        <translation>Principal</translation>
    </message>
    <message id="20012">
        <source>Ringtone</source>
        <translation>Tono</translation>
    </message>
    <message id="20013">
        <source>Phone</source>
        <translation>Teléfono</translation>
    </message>
    <message id="20014">
        <source>Navigation</source>
        <translation>Navegación</translation>
    </message>
    <message id="20015">
        <source>Voice</source>
        <translation>Voz</translation>
    </message>
    <message id="20016">
        <source>Traffic</source>
        <translation>Tráfico</translation>
    </message>
    <message id="20031">
        <source>Voice</source>
        <translation>Voz</translation>
    </message>
    <message id="20032">
        <source>Traffic</source>
        <translation>Tráfico</translation>
    </message>
    <message id="20033">
        <source>Key Beep</source>
        <translation>Pitido</translation>
    </message>
    <message id="20034">
        <source>Muted</source>
        <translation>Sonido desactivado</translation>
    </message>
    <message id="20035">
        <source>No sound: no sound server answers</source>
        <translation>Sin sonido: ningún servidor de sonido responde</translation>
    </message>
    <message id="20036">
        <source>No sound: there is no sound device</source>
        <translation>Sin sonido: no hay ningún dispositivo de audio</translation>
    </message>
    <message id="20037">
        <source>No sound: the file cannot be played</source>
        <translation>Sin sonido: el archivo no se puede reproducir</translation>
    </message>
    <message id="20038">
        <source>No sound: the sound library is missing</source>
        <translation>Sin sonido: falta la biblioteca de sonido</translation>
    </message>
    <message id="20017">
        <source>DAB</source>
        <translation>DAB</translation>
    </message>
    <message id="20018">
        <source>Band Adjust</source>
        <translation>Bandas</translation>
    </message>
    <message id="20019">
        <source>Tuner's desk</source>
        <translation>Mesa de ajuste</translation>
    </message>
    <message id="20039">
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message id="20040">
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message id="20041">
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message id="20042">
        <source>Mute</source>
        <translation>Silencio</translation>
    </message>
</context>
</TS>
