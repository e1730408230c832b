<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>desk</name>
    <message>
        <source>Tuner's desk</source>
        <translation>Mesa de ajuste</translation>
    </message>
    <message>
        <source>&amp;Desk</source>
        <translation>&amp;Mesa</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>&amp;Windows</source>
        <translation>&amp;Ventanas</translation>
    </message>
    <message>
        <source>&amp;Close the desk</source>
        <translation>&amp;Cerrar la mesa</translation>
    </message>
    <message>
        <source>Service console</source>
        <translation>Consola de servicios</translation>
    </message>
    <message>
        <source>Calls between the applications and the unit</source>
        <translation>Lo que ocurre entre las aplicaciones y la unidad</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Grabación</translation>
    </message>
    <message>
        <source>What is touched as a script, and reports of problems</source>
        <translation>Lo que se toca, como script, e informes de problemas</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Grabar</translation>
    </message>
    <message>
        <source>%1 touches, %2 s</source>
        <translation>%1 toques, %2 s</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>Grabando: %1</translation>
    </message>
    <message>
        <source>Nothing is recorded yet</source>
        <translation>Aún no se ha grabado nada</translation>
    </message>
    <message>
        <source>Save the recording</source>
        <translation>Guardar la grabación</translation>
    </message>
    <message>
        <source>Script (*.js)</source>
        <translation>Script (*.js)</translation>
    </message>
    <message>
        <source>Saved in %1; headunit --script plays it</source>
        <translation>Guardado en %1; headunit --script lo reproduce</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>Informar de un problema</translation>
    </message>
    <message>
        <source>Curves of other programs</source>
        <translation>Curvas de otros programas</translation>
    </message>
    <message>
        <source>Filter lists in, responses and the curve out</source>
        <translation>Entran listas de filtros, salen respuestas y la curva</translation>
    </message>
    <message>
        <source>"%1": %2 dB remain on average, %3 dB at most, at %4 Hz</source>
        <translation>«%1»: quedan %2 dB de media, %3 dB como máximo, a %4 Hz</translation>
    </message>
    <message>
        <source>Import a filter list of Equalizer APO or REW to see what the bands make of it</source>
        <translation>Importe una lista de filtros de Equalizer APO o REW para ver qué hacen de ella las bandas</translation>
    </message>
    <message>
        <source>Import a curve</source>
        <translation>Importar una curva</translation>
    </message>
    <message>
        <source>Filter list (*.txt)</source>
        <translation>Lista de filtros (*.txt)</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Curva</translation>
    </message>
    <message>
        <source>Export the curve for Equalizer APO</source>
        <translation>Exportar la curva para Equalizer APO</translation>
    </message>
    <message>
        <source>Export the responses of the outputs</source>
        <translation>Exportar las respuestas de las salidas</translation>
    </message>
    <message>
        <source>Response (*.frd)</source>
        <translation>Respuesta (*.frd)</translation>
    </message>
    <message>
        <source>Response, REW (*.txt)</source>
        <translation>Respuesta, REW (*.txt)</translation>
    </message>
    <message>
        <source>Shows what the bands make of a filter list; Apply puts it in force</source>
        <translation>Muestra qué hacen las bandas de una lista de filtros; Aplicar la pone en vigor</translation>
    </message>
    <message>
        <source>Makes the curve that is shown the custom curve</source>
        <translation>Convierte la curva mostrada en la curva propia</translation>
    </message>
    <message>
        <source>Export the curve…</source>
        <translation>Exportar la curva…</translation>
    </message>
    <message>
        <source>Writes the equaliser in force as filters</source>
        <translation>Escribe el ecualizador en vigor como filtros</translation>
    </message>
    <message>
        <source>Export the responses…</source>
        <translation>Exportar las respuestas…</translation>
    </message>
    <message>
        <source>Writes the response of each output and of their sum, a file each: Hz, dB, degrees</source>
        <translation>Escribe la respuesta de cada salida y de la suma, un archivo cada una: Hz, dB, grados</translation>
    </message>
    <message>
        <source>Bands of the equaliser</source>
        <translation>Bandas del ecualizador</translation>
    </message>
    <message>
        <source>Band</source>
        <translation>Banda</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>En el archivo</translation>
    </message>
    <message>
        <source>Taken as</source>
        <translation>Tomado como</translation>
    </message>
    <message>
        <source>Left at the band</source>
        <translation>Resta en la banda</translation>
    </message>
    <message>
        <source>Tape measure</source>
        <translation>Cinta métrica</translation>
    </message>
    <message>
        <source>Distances of the loudspeakers become their delays</source>
        <translation>Las distancias de los altavoces se convierten en retardos</translation>
    </message>
    <message>
        <source>Measure from the listener's head to each loudspeaker</source>
        <translation>Mida desde la cabeza del oyente hasta cada altavoz</translation>
    </message>
    <message>
        <source>Front left</source>
        <translation>Delantero izquierdo</translation>
    </message>
    <message>
        <source>Front right</source>
        <translation>Delantero derecho</translation>
    </message>
    <message>
        <source>Rear left</source>
        <translation>Trasero izquierdo</translation>
    </message>
    <message>
        <source>Rear right</source>
        <translation>Trasero derecho</translation>
    </message>
    <message>
        <source>Subwoofer left</source>
        <translation>Subwoofer izquierdo</translation>
    </message>
    <message>
        <source>Subwoofer right</source>
        <translation>Subwoofer derecho</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Altavoz</translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation>Centímetros</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Pulgadas</translation>
    </message>
    <message>
        <source>Exact delay</source>
        <translation>Retardo exacto</translation>
    </message>
    <message>
        <source>Rounding</source>
        <translation>Redondeo</translation>
    </message>
    <message>
        <source>A loudspeaker is too near for the rest: no delay is longer than %1 ms</source>
        <translation>Un altavoz está demasiado cerca respecto a los demás: ningún retardo supera %1 ms</translation>
    </message>
    <message>
        <source>Sets the six delays, as one step</source>
        <translation>Ajusta los seis retardos en un solo paso</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Of the air in the car: sound is faster where it is warm</source>
        <translation>Del aire en el coche: el sonido es más rápido con calor</translation>
    </message>
    <message>
        <source>%1 in centimetres</source>
        <translation>%1 en centímetros</translation>
    </message>
    <message>
        <source>%1 in inches</source>
        <translation>%1 en pulgadas</translation>
    </message>
    <message>
        <source>Report a problem…</source>
        <translation>Informar de un problema…</translation>
    </message>
    <message>
        <source>Archive (*.tar.gz)</source>
        <translation>Archivo comprimido (*.tar.gz)</translation>
    </message>
    <message>
        <source>Saved in %1; look into it before you send it</source>
        <translation>Guardado en %1; revíselo antes de enviarlo</translation>
    </message>
    <message>
        <source>Records what is touched as a script. The unit starts anew, at its home screen.</source>
        <translation>Graba lo que se toca como script. El equipo empieza de nuevo, en la pantalla de inicio.</translation>
    </message>
    <message>
        <source>Saves the recording as a script that headunit --script plays</source>
        <translation>Guarda la grabación como script que headunit --script reproduce</translation>
    </message>
    <message>
        <source>Packs set-up, recording, console and versions into one archive that does not name you</source>
        <translation>Reúne ajustes, grabación, consola y versiones en un archivo que no le nombra</translation>
    </message>
    <message>
        <source>Recording as a script</source>
        <translation>Grabación como script</translation>
    </message>
    <message>
        <source>A recording starts as the unit does: on the home screen, with what is set now.</source>
        <translation>Una grabación empieza como el equipo: en la pantalla de inicio, con los ajustes actuales.</translation>
    </message>
    <message>
        <source>What went wrong, for the report</source>
        <translation>Qué ha fallado, para el informe</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Top bar</source>
        <translation>Barra superior</translation>
    </message>
    <message>
        <source>Tab bar</source>
        <translation>Barra de pestañas</translation>
    </message>
    <message>
        <source>Home screen</source>
        <translation>Pantalla de inicio</translation>
    </message>
    <message>
        <source>Status bar</source>
        <translation>Barra de estado</translation>
    </message>
    <message>
        <source>Hard keys</source>
        <translation>Teclas físicas</translation>
    </message>
    <message>
        <source>Touch</source>
        <translation>Toque</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Llamada</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Escritura</translation>
    </message>
    <message>
        <source>Announcement</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Posted touch</source>
        <translation>Gesto enviado</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lectura</translation>
    </message>
    <message>
        <source>Log line</source>
        <translation>Línea de registro</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>sin definir</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Clase</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Significado</translation>
    </message>
    <message>
        <source>finger down on %1</source>
        <translation>dedo abajo en %1</translation>
    </message>
    <message>
        <source>finger up on %1</source>
        <translation>dedo arriba en %1</translation>
    </message>
    <message>
        <source>key of the keyboard</source>
        <translation>tecla del teclado</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 de %2 filas</translation>
    </message>
    <message>
        <source>paused, %1 more</source>
        <translation>en pausa, %1 más</translation>
    </message>
    <message>
        <source>Every page</source>
        <translation>Todas las páginas</translation>
    </message>
    <message>
        <source>Save the rows shown</source>
        <translation>Guardar las filas mostradas</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Texto (*.txt)</translation>
    </message>
    <message>
        <source>JSON lines (*.jsonl)</source>
        <translation>Líneas JSON (*.jsonl)</translation>
    </message>
    <message>
        <source>Saved in %1</source>
        <translation>Guardado en %1</translation>
    </message>
    <message>
        <source>Words that stand in the row</source>
        <translation>Palabras que están en la fila</translation>
    </message>
    <message>
        <source>Filter by words</source>
        <translation>Filtrar por palabras</translation>
    </message>
    <message>
        <source>Shows the rows in which all of these words stand, in call, meaning or page</source>
        <translation>Muestra las filas en las que están todas estas palabras, en llamada, significado o página</translation>
    </message>
    <message>
        <source>Classes</source>
        <translation>Clases</translation>
    </message>
    <message>
        <source>Which classes of rows are shown. Reads are recorded only while they are.</source>
        <translation>Qué clases de filas se muestran. Las lecturas solo se registran mientras se muestran.</translation>
    </message>
    <message>
        <source>Filter by page</source>
        <translation>Filtrar por página</translation>
    </message>
    <message>
        <source>Shows what this page of the unit caused</source>
        <translation>Muestra lo que causó esta página de la unidad</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Holds the rows still; what comes meanwhile is shown afterwards</source>
        <translation>Detiene las filas; lo que llegue se muestra después</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Seguir</translation>
    </message>
    <message>
        <source>Keeps the newest row in sight</source>
        <translation>Mantiene a la vista la fila más reciente</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Forgets all rows</source>
        <translation>Olvida todas las filas</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copies the selected rows as text</source>
        <translation>Copia las filas seleccionadas como texto</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Guardar…</translation>
    </message>
    <message>
        <source>Saves the rows shown as text or as JSON lines</source>
        <translation>Guarda las filas mostradas como texto o como líneas JSON</translation>
    </message>
    <message>
        <source>Rows of the service console</source>
        <translation>Filas de la consola de servicios</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>Guardando %1</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>detenido</translation>
    </message>
    <message>
        <source>Set-ups</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>Keep, compare, undo: what is set, and what was</source>
        <translation>Guardar, comparar, deshacer</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Deshacer: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rehacer: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Takes the last change back (%1)</source>
        <translation>Deshace el último cambio (%1)</translation>
    </message>
    <message>
        <source>Reset: %1 settings</source>
        <translation>Restablecido: %1 valores</translation>
    </message>
    <message>
        <source>Crossover flat: %1 settings</source>
        <translation>Filtros planos: %1 valores</translation>
    </message>
    <message>
        <source>Delays flat: %1 settings</source>
        <translation>Retardos a cero: %1 valores</translation>
    </message>
    <message>
        <source>%1: %2 settings</source>
        <translation>%1: %2 valores</translation>
    </message>
    <message>
        <source>Changed while the desk was closed</source>
        <translation>Cambiado con la mesa cerrada</translation>
    </message>
    <message>
        <source>A/B</source>
        <translation>A/B</translation>
    </message>
    <message>
        <source>A is in force</source>
        <translation>A está activo</translation>
    </message>
    <message>
        <source>B is in force</source>
        <translation>B está activo</translation>
    </message>
    <message>
        <source>A is now a copy of B</source>
        <translation>A es ahora una copia de B</translation>
    </message>
    <message>
        <source>B is now a copy of A</source>
        <translation>B es ahora una copia de A</translation>
    </message>
    <message>
        <source>Choose or import a set-up to see what it would change</source>
        <translation>Elija o importe un ajuste para ver qué cambiaría</translation>
    </message>
    <message>
        <source>"%1" changes %2 values</source>
        <translation>«%1» cambia %2 valores</translation>
    </message>
    <message>
        <source>"%1" is in force</source>
        <translation>«%1» está activo</translation>
    </message>
    <message>
        <source>"%1" is deleted</source>
        <translation>«%1» se ha eliminado</translation>
    </message>
    <message>
        <source>Keep the present set-up under a name</source>
        <translation>Guardar el ajuste actual con un nombre</translation>
    </message>
    <message>
        <source>Export the present set-up</source>
        <translation>Exportar el ajuste actual</translation>
    </message>
    <message>
        <source>Import a set-up</source>
        <translation>Importar un ajuste</translation>
    </message>
    <message>
        <source>Set-up (*.txt)</source>
        <translation>Ajuste (*.txt)</translation>
    </message>
    <message>
        <source>Keep as…</source>
        <translation>Guardar como…</translation>
    </message>
    <message>
        <source>Keeps the present set-up under a name</source>
        <translation>Guarda el ajuste actual con un nombre</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Puts the set-up that is shown in force</source>
        <translation>Activa el ajuste mostrado</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Deletes the chosen set-up</source>
        <translation>Elimina el ajuste elegido</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>Shows what a set-up file would change; Apply puts it in force</source>
        <translation>Muestra qué cambiaría un archivo; Aplicar lo activa</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Writes the present set-up into a file, for another unit</source>
        <translation>Escribe el ajuste actual en un archivo, para otra unidad</translation>
    </message>
    <message>
        <source>Changes between two set-ups; what you change goes to the one in force</source>
        <translation>Cambia entre dos ajustes; lo que cambie va al activo</translation>
    </message>
    <message>
        <source>Copy to the other</source>
        <translation>Copiar al otro</translation>
    </message>
    <message>
        <source>Makes the other one of A and B a copy of the one in force</source>
        <translation>Hace del otro de A y B una copia del activo</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Cambios</translation>
    </message>
    <message>
        <source>Every change; touch one to go back or forth to it</source>
        <translation>Cada cambio; elija uno para ir a él</translation>
    </message>
    <message>
        <source>Before all changes</source>
        <translation>Antes de todos los cambios</translation>
    </message>
    <message>
        <source>Changes of the set-up</source>
        <translation>Lo que cambia el ajuste</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>In the set-up</source>
        <translation>En el ajuste</translation>
    </message>
    <message>
        <source>%1 dB to match</source>
        <translation>%1 dB para igualar</translation>
    </message>
    <message>
        <source>Match levels</source>
        <translation>Igualar niveles</translation>
    </message>
    <message>
        <source>Makes the louder of A and B as quiet as the other, so that the ear compares the sound</source>
        <translation>Baja el más fuerte de A y B al nivel del otro, para comparar el sonido</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Response</source>
        <translation>Respuesta</translation>
    </message>
    <message>
        <source>What the loudspeakers and their sum make of every frequency</source>
        <translation>Lo que los altavoces y su suma hacen de cada frecuencia</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Suma</translation>
    </message>
    <message>
        <source>Shows or hides this curve</source>
        <translation>Muestra u oculta esta curva</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fase</translation>
    </message>
    <message>
        <source>Shows the phase below the magnitude</source>
        <translation>Muestra la fase debajo de la magnitud</translation>
    </message>
    <message>
        <source>Group delay</source>
        <translation>Retardo de grupo</translation>
    </message>
    <message>
        <source>Shows the group delay below the magnitude</source>
        <translation>Muestra el retardo de grupo debajo de la magnitud</translation>
    </message>
    <message>
        <source>With delays</source>
        <translation>Con retardos</translation>
    </message>
    <message>
        <source>Off: as if the delays made up for the distances of the loudspeakers</source>
        <translation>Desactivado: como si los retardos compensaran las distancias de los altavoces</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Retener</translation>
    </message>
    <message>
        <source>Keeps the present curves beside the coming ones</source>
        <translation>Mantiene las curvas actuales junto a las siguientes</translation>
    </message>
    <message>
        <source>Zoom back</source>
        <translation>Zoom atrás</translation>
    </message>
    <message>
        <source>Shows the part that was shown before; a right click, too</source>
        <translation>Muestra la parte anterior; también con clic derecho</translation>
    </message>
    <message>
        <source>Whole</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>Shows all frequencies</source>
        <translation>Muestra todas las frecuencias</translation>
    </message>
    <message>
        <source>Saves the diagrams as a picture, PNG or SVG</source>
        <translation>Guarda los diagramas como imagen, PNG o SVG</translation>
    </message>
    <message>
        <source>Save the diagrams</source>
        <translation>Guardar los diagramas</translation>
    </message>
    <message>
        <source>Picture (*.png)</source>
        <translation>Imagen (*.png)</translation>
    </message>
    <message>
        <source>Drawing (*.svg)</source>
        <translation>Dibujo (*.svg)</translation>
    </message>
    <message>
        <source>Magnitude</source>
        <translation>Magnitud</translation>
    </message>
    <message>
        <source>Point at a curve to read its values; draw a frame to see more of it</source>
        <translation>Señale una curva para leer sus valores; trace un marco para verla ampliada</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>%1 kHz</source>
        <translation>%1 kHz</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>(held %1)</source>
        <translation>(retenido %1)</translation>
    </message>
    <message>
        <source>The main volume is 0: nothing is heard</source>
        <translation>El volumen principal es 0: no se oye nada</translation>
    </message>
    <message>
        <source>Hole of %1 dB at %2 Hz</source>
        <translation>Hueco de %1 dB en %2 Hz</translation>
    </message>
    <message>
        <source>Hole of more than %1 dB at %2 Hz</source>
        <translation>Hueco de más de %1 dB en %2 Hz</translation>
    </message>
    <message>
        <source>Overlap of %1 dB at %2 Hz</source>
        <translation>Solapamiento de %1 dB en %2 Hz</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>try phase %1° for the subwoofers</source>
        <translation>pruebe la fase %1° para los subwoofers</translation>
    </message>
    <message>
        <source>try %1 Hz as the subwoofers' low-pass</source>
        <translation>pruebe %1 Hz como paso bajo de los subwoofers</translation>
    </message>
    <message>
        <source>try %1 Hz as the front high-pass</source>
        <translation>pruebe %1 Hz como paso alto delantero</translation>
    </message>
    <message>
        <source>try %1 Hz as the rear high-pass</source>
        <translation>pruebe %1 Hz como paso alto trasero</translation>
    </message>
    <message>
        <source>it comes of the delays, which differ</source>
        <translation>se debe a los retardos, que son distintos</translation>
    </message>
    <message>
        <source>Meters</source>
        <translation>Medidores</translation>
    </message>
    <message>
        <source>How loud each loudspeaker is, and what its limiter takes away</source>
        <translation>Qué nivel tiene cada altavoz y cuánto quita su limitador</translation>
    </message>
    <message>
        <source>Limiter front</source>
        <translation>Limitador delantero</translation>
    </message>
    <message>
        <source>Limiter rear</source>
        <translation>Limitador trasero</translation>
    </message>
    <message>
        <source>Limiter sub</source>
        <translation>Limitador sub</translation>
    </message>
    <message>
        <source>Nothing plays</source>
        <translation>No suena nada</translation>
    </message>
    <message>
        <source>Nothing plays: no sound server answers</source>
        <translation>No suena nada: ningún servidor de sonido responde</translation>
    </message>
    <message>
        <source>Nothing plays: there is no sound device</source>
        <translation>No suena nada: no hay ningún dispositivo de sonido</translation>
    </message>
    <message>
        <source>Nothing plays: the unit makes no sound here</source>
        <translation>No suena nada: el equipo no emite sonido aquí</translation>
    </message>
    <message>
        <source>Nothing plays: what was to be played cannot be read</source>
        <translation>No suena nada: no se puede leer lo que debía sonar</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Suena</translation>
    </message>
    <message>
        <source>%1 Hz, %2</source>
        <translation>%1 Hz, %2</translation>
    </message>
    <message>
        <source>+%1 dB at %2: turn down by %1 dB or expect the limiter</source>
        <translation>+%1 dB en %2: baje %1 dB o cuente con el limitador</translation>
    </message>
    <message>
        <source>Headroom of %1 dB; least of it at %2</source>
        <translation>Margen de %1 dB; el menor en %2</translation>
    </message>
    <message>
        <source>Forgets the highest values and the clips</source>
        <translation>Olvida los valores máximos y las saturaciones</translation>
    </message>
    <message>
        <source>What the limiter takes away, in dB</source>
        <translation>Lo que quita el limitador, en dB</translation>
    </message>
    <message>
        <source>Peak of the samples, held for 1.5 s, falling by 20 dB in 1.7 s (IEC 60268-18); within it the mean of 300 ms</source>
        <translation>Pico de las muestras, retenido 1,5 s, cae 20 dB en 1,7 s (IEC 60268-18); dentro, la media de 300 ms</translation>
    </message>
    <message>
        <source>The most that the limiter took away since the reset, in dB</source>
        <translation>Lo máximo que quitó el limitador desde el restablecimiento, en dB</translation>
    </message>
    <message>
        <source>Highest sample since the reset, in dB of full scale</source>
        <translation>Muestra máxima desde el restablecimiento, en dB de plena escala</translation>
    </message>
    <message>
        <source>Mean of 300 ms in dB; a sine of full scale reads 0 dB (AES17)</source>
        <translation>Media de 300 ms en dB; un seno de plena escala marca 0 dB (AES17)</translation>
    </message>
    <message>
        <source>How often the sound went beyond full scale since the reset, and the limiter caught it</source>
        <translation>Cuántas veces el sonido superó la plena escala desde el restablecimiento y el limitador lo contuvo</translation>
    </message>
    <message>
        <source>Highest</source>
        <translation>Máximo</translation>
    </message>
    <message>
        <source>RMS</source>
        <translation>RMS</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Saturaciones</translation>
    </message>
    <message>
        <source>For a tone of full scale at the frequency that the settings raise most</source>
        <translation>Para un tono de plena escala en la frecuencia que los ajustes más elevan</translation>
    </message>
</context>
</TS>
