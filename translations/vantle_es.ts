<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>AppDelegate</name>
    <message>
        <source>Pick Color</source>
        <translation>Capturar color</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Preferencias…</translation>
    </message>
    <message>
        <source>Quit vantle</source>
        <translation>Salir de vantle</translation>
    </message>
</context>
<context>
    <name>AppcastUpdater</name>
    <message>
        <source>This copy of %1 has no key to verify updates with, so version %2 was not downloaded. Please get it from the %1 website.</source>
        <translation>Esta copia de %1 no tiene ninguna clave para verificar actualizaciones, así que la versión %2 no se descargó. Obténgala en el sitio web de %1.</translation>
    </message>
    <message>
        <source>The update could not be saved in %1.</source>
        <translation>No se pudo guardar la actualización en %1.</translation>
    </message>
    <message>
        <source>The update could not be saved in %1, so the partial file was deleted.</source>
        <translation>No se pudo guardar la actualización en %1, así que se eliminó el archivo parcial.</translation>
    </message>
    <message>
        <source>The update could not be downloaded, so the partial file was deleted.</source>
        <translation>No se pudo descargar la actualización, así que se eliminó el archivo parcial.</translation>
    </message>
    <message>
        <source>This copy of %1 has no usable key to verify updates with, so the downloaded file was deleted. Please get the new version from the %1 website.</source>
        <translation>Esta copia de %1 no tiene ninguna clave válida para verificar actualizaciones, así que se eliminó el archivo descargado. Obtenga la nueva versión en el sitio web de %1.</translation>
    </message>
    <message>
        <source>The downloaded file does not have the size the update feed announced, so it was deleted.</source>
        <translation>El archivo descargado no tiene el tamaño anunciado por la fuente de actualizaciones, así que se eliminó.</translation>
    </message>
    <message>
        <source>The downloaded file does not carry a valid signature from the maker of %1, so it was deleted.</source>
        <translation>El archivo descargado no lleva una firma válida del fabricante de %1, así que se eliminó.</translation>
    </message>
    <message>
        <source>The downloaded file could not be read back for checking, so it was deleted.</source>
        <translation>El archivo descargado no se pudo leer para comprobarlo, así que se eliminó.</translation>
    </message>
</context>
<context>
    <name>ColorDetailView</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Contrast Ratios</source>
        <translation>Relaciones de contraste</translation>
    </message>
    <message>
        <source>vs White</source>
        <translation>sobre blanco</translation>
    </message>
    <message>
        <source>vs Black</source>
        <translation>sobre negro</translation>
    </message>
    <message>
        <source>Color details</source>
        <translation>Detalles del color</translation>
    </message>
</context>
<context>
    <name>ColorFormat</name>
    <message>
        <source>Hex</source>
        <extracomment>The name of a colour format: hexadecimal digits, as in #FF6B36</extracomment>
        <translation>Hex</translation>
    </message>
    <message>
        <source>Hex (lowercase)</source>
        <extracomment>The name of a colour format: hexadecimal digits in lower case, as in #ff6b36</extracomment>
        <translation>Hex (minúsculas)</translation>
    </message>
    <message>
        <source>RGB (decimal)</source>
        <extracomment>The name of a colour format: red, green and blue as whole numbers 0 to 255, as in 255, 107, 54</extracomment>
        <translation>RGB (decimal)</translation>
    </message>
</context>
<context>
    <name>ColorListView</name>
    <message>
        <source>colors</source>
        <extracomment>Spoken after the number of colours in the history (&quot;3 colors&quot;)</extracomment>
        <translation>colores</translation>
    </message>
    <message>
        <source>Pick Color</source>
        <translation>Capturar color</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Export colors</source>
        <translation>Exportar colores</translation>
    </message>
    <message>
        <source>Export Pinned as Text</source>
        <translation>Exportar anclados como texto</translation>
    </message>
    <message>
        <source>Export Pinned as JSON</source>
        <translation>Exportar anclados como JSON</translation>
    </message>
    <message>
        <source>Export All as Text</source>
        <translation>Exportar todo como texto</translation>
    </message>
    <message>
        <source>Export All as JSON</source>
        <translation>Exportar todo como JSON</translation>
    </message>
    <message>
        <source>Quit vantle</source>
        <translation>Salir de vantle</translation>
    </message>
    <message>
        <source>No colors yet</source>
        <translation>Aún no hay colores</translation>
    </message>
    <message>
        <source>Click Pick Color to get started</source>
        <translation>Pulse «Capturar color» para empezar</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>PINNED</source>
        <extracomment>Heading of the list of pinned colours, in capitals where the language has them</extracomment>
        <translation>ANCLADOS</translation>
    </message>
    <message>
        <source>RECENT</source>
        <translation>RECIENTES</translation>
    </message>
    <message>
        <source>Picking…</source>
        <translation>Capturando…</translation>
    </message>
</context>
<context>
    <name>ColorListViewModel</name>
    <message>
        <source>Copied %1</source>
        <extracomment>The confirmation after a copy; %1 is the colour text put on the clipboard</extracomment>
        <translation>%1 copiado</translation>
    </message>
    <message>
        <source>Not copied: the clipboard is not available</source>
        <translation>No copiado: el portapapeles no está disponible</translation>
    </message>
    <message>
        <source>“%1” could not be written: %2</source>
        <translation>No se pudo escribir «%1»: %2</translation>
    </message>
</context>
<context>
    <name>ColorRowView</name>
    <message>
        <source>pinned</source>
        <extracomment>Spoken state of a colour kept in the palette</extracomment>
        <translation>anclado</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Unpin</source>
        <extracomment>The verbs of the menu: keep the colour in the palette, or take it out (Unpin)</extracomment>
        <translation>Desanclar</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Anclar</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Renombrar…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>opción desconocida «%1»</translation>
    </message>
    <message>
        <source>cannot read the colour &quot;%1&quot;; accepted: %2</source>
        <translation>no se puede leer el color «%1»; se acepta: %2</translation>
    </message>
    <message>
        <source>any text Vantle writes (#RRGGBB, rgb(), rgba(), hsl(), hsb(), R, G, B, Color(), UIColor()), #RGB, RRGGBB, or r,g,b[,a] with components such as 1.0,0.42,0.21</source>
        <translation>cualquier texto que escriba Vantle (#RRGGBB, rgb(), rgba(), hsl(), hsb(), R, G, B, Color(), UIColor()), #RGB, RRGGBB, o r,g,b[,a] con componentes como 1.0,0.42,0.21</translation>
    </message>
    <message>
        <source>Usage: vantle [COMMAND] [OPTIONS]

Without a command, Vantle starts in the system tray (or, when it already runs,
shows or hides its popup).

Commands:
  format [--format NAME | --all] [--contrast] COLOR...
      Print colours as text. COLOR is any text Vantle writes (rgb(...),
      hsl(...)...), #RGB, #RRGGBB, RRGGBB, or sRGB components r,g,b or r,g,b,a
      between 0 and 1. Without --format the preferred format is used.
      --all prints all nine formats as LABEL&lt;TAB&gt;TEXT; --contrast adds the
      WCAG contrast against white and black.
        vantle format &apos;#FF6B36&apos; --format hsl
        vantle format --all --contrast 1.0,0.42,0.21
  contrast [--json] FOREGROUND BACKGROUND
      Print the WCAG 2 contrast ratio of a text colour on its background, its
      grades for normal text, large text and non-text parts, and the APCA
      lightness contrast Lc; --json prints one object. A colour is any text
      Vantle writes, #RGB, or the forms `format` reads.
        vantle contrast &apos;#888&apos; &apos;#FFF&apos;
  export [--pinned] [--json] [-o FILE]
      Print the stored history (or only the pinned colours) as text in the
      preferred format, or as JSON; with -o, write it atomically to FILE.
        vantle export --pinned --json -o palette.json
  pick [--print [--format NAME]]
      Ask the running Vantle to start a pick (bind this to a key in your
      desktop&apos;s keyboard settings). With --print, pick in this process and
      print the colour instead; exit status 1 when cancelled.
        vantle pick
        vantle pick --print --format hexLower
  toggle
      Ask the running Vantle to show or hide its popup.
        vantle toggle

Options:
  -h, --help     Show this help.
  -v, --version  Show the version.

Settings: %1
</source>
        <extracomment>The names of commands and options, the example lines (starting with &quot;vantle&quot;) and %1 stay as they are; keep each line within 80 columns.</extracomment>
        <translation>Uso: vantle [ORDEN] [OPCIONES]

Sin una orden, Vantle se inicia en la bandeja del sistema (o, si ya está en
marcha, muestra u oculta su ventana).

Órdenes:
  format [--format NAME | --all] [--contrast] COLOR...
      Mostrar colores como texto. COLOR es cualquier texto que escriba Vantle
      (rgb(...), hsl(...)...), #RGB, #RRGGBB, RRGGBB, o componentes sRGB
      r,g,b o r,g,b,a entre 0 y 1. Sin --format se usa el formato preferido.
      --all muestra los nueve formatos como LABEL&lt;TAB&gt;TEXT; --contrast añade
      el contraste WCAG frente al blanco y al negro.
        vantle format &apos;#FF6B36&apos; --format hsl
        vantle format --all --contrast 1.0,0.42,0.21
  contrast [--json] FOREGROUND BACKGROUND
      Mostrar la relación de contraste WCAG 2 de un color de texto sobre su
      fondo, sus niveles para texto normal, texto grande y elementos que no
      son texto, y el contraste de luminosidad APCA Lc; --json muestra un
      objeto. Un color es cualquier texto que escriba Vantle, #RGB, o las
      formas que lee `format`.
        vantle contrast &apos;#888&apos; &apos;#FFF&apos;
  export [--pinned] [--json] [-o FILE]
      Mostrar el historial guardado (o solo los colores anclados) como texto
      en el formato preferido, o como JSON; con -o, escribirlo de forma
      atómica en FILE.
        vantle export --pinned --json -o palette.json
  pick [--print [--format NAME]]
      Pedir al Vantle en marcha que capture un color (asigne esto a una tecla
      en la configuración del teclado de su escritorio). Con --print, capturar
      en este proceso y mostrar el color; estado de salida 1 si se cancela.
        vantle pick
        vantle pick --print --format hexLower
  toggle
      Pedir al Vantle en marcha que muestre u oculte su ventana.
        vantle toggle

Opciones:
  -h, --help     Mostrar esta ayuda.
  -v, --version  Mostrar la versión.

Preferencias: %1
</translation>
    </message>
    <message>
        <source>Usage: vantle contrast [--json] FOREGROUND BACKGROUND
The WCAG 2 contrast ratio of FOREGROUND (text, an icon, a border) on
BACKGROUND, its grades for normal text (AA 4.5, AAA 7), large text (AA 3,
AAA 4.5) and non-text parts (3), and the APCA lightness contrast Lc
(negative for light on dark). A translucent foreground is drawn on the
background first; the background must be opaque.</source>
        <translation>Uso: vantle contrast [--json] FOREGROUND BACKGROUND
La relación de contraste WCAG 2 de FOREGROUND (texto, un icono, un borde)
sobre BACKGROUND, sus niveles para texto normal (AA 4.5, AAA 7), texto grande
(AA 3, AAA 4.5) y elementos que no son texto (3), y el contraste de
luminosidad APCA Lc (negativo para claro sobre oscuro). Un primer plano
translúcido se dibuja antes sobre el fondo; el fondo debe ser opaco.</translation>
    </message>
    <message>
        <source>Colours: %1</source>
        <translation>Colores: %1</translation>
    </message>
    <message numerus="yes">
        <source>needs a foreground and a background colour, %n given</source>
        <translation>
            <numerusform>se necesita un color de primer plano y uno de fondo; se dio %n</numerusform>
            <numerusform>se necesita un color de primer plano y uno de fondo; se dieron %n</numerusform>
        </translation>
    </message>
    <message>
        <source>the background must be opaque (its alpha is %1)</source>
        <translation>el fondo debe ser opaco (su alfa es %1)</translation>
    </message>
    <message>
        <source>-o needs a file name</source>
        <translation>-o necesita un nombre de archivo</translation>
    </message>
    <message>
        <source>Usage: vantle export [--pinned] [--json] [-o FILE]
Prints the stored colour history (with --pinned only the pinned colours), newest
first, as text in the preferred format or as JSON; -o writes it to FILE.</source>
        <translation>Uso: vantle export [--pinned] [--json] [-o FILE]
Muestra el historial de colores guardado (con --pinned, solo los colores
anclados), del más reciente al más antiguo, como texto en el formato preferido
o como JSON; -o lo escribe en FILE.</translation>
    </message>
    <message>
        <source>unknown argument &quot;%1&quot;</source>
        <translation>argumento desconocido «%1»</translation>
    </message>
    <message>
        <source>the stored colour history cannot be read (%1)</source>
        <translation>no se puede leer el historial de colores guardado (%1)</translation>
    </message>
    <message>
        <source>cannot write &quot;%1&quot;: %2</source>
        <translation>no se puede escribir «%1»: %2</translation>
    </message>
    <message>
        <source>--format needs a format name; accepted: %1</source>
        <translation>--format necesita un nombre de formato; se acepta: %1</translation>
    </message>
    <message>
        <source>unknown format &quot;%1&quot;; accepted: %2</source>
        <translation>formato desconocido «%1»; se acepta: %2</translation>
    </message>
    <message>
        <source>Usage: vantle format [--format NAME | --all] [--contrast] COLOR...</source>
        <translation>Uso: vantle format [--format NAME | --all] [--contrast] COLOR...</translation>
    </message>
    <message>
        <source>Formats: %1</source>
        <translation>Formatos: %1</translation>
    </message>
    <message>
        <source>--format and --all cannot be used together</source>
        <translation>--format y --all no se pueden usar juntos</translation>
    </message>
    <message>
        <source>no colour given; accepted: %1</source>
        <translation>no se dio ningún color; se acepta: %1</translation>
    </message>
    <message>
        <source>Vantle is not running.</source>
        <translation>Vantle no está en marcha.</translation>
    </message>
    <message>
        <source>the running Vantle did not answer.</source>
        <translation>el Vantle en marcha no respondió.</translation>
    </message>
    <message>
        <source>the running Vantle did not answer (%1).</source>
        <translation>el Vantle en marcha no respondió (%1).</translation>
    </message>
    <message>
        <source>the command &quot;%1&quot; is not available in this build</source>
        <translation>la orden «%1» no está disponible en esta compilación</translation>
    </message>
    <message>
        <source>the desktop part of Vantle cannot be loaded (%1). Reinstalling Vantle puts it back.</source>
        <translation>no se puede cargar la parte de escritorio de Vantle (%1). Reinstalar Vantle la restablece.</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;</source>
        <translation>orden desconocida «%1»</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>argumento inesperado «%1»</translation>
    </message>
    <message>
        <source>Start it with `vantle` (or from your applications menu) first.</source>
        <translation>Inícielo antes con `vantle` (o desde el menú de aplicaciones).</translation>
    </message>
</context>
<context>
    <name>Contrast</name>
    <message>
        <source>body text</source>
        <translation>texto de cuerpo</translation>
    </message>
    <message>
        <source>large or bold text</source>
        <translation>texto grande o en negrita</translation>
    </message>
    <message>
        <source>headlines</source>
        <translation>titulares</translation>
    </message>
    <message>
        <source>non-text only</source>
        <translation>solo elementos que no son texto</translation>
    </message>
    <message>
        <source>dividers and disabled parts only</source>
        <translation>solo separadores y elementos desactivados</translation>
    </message>
    <message>
        <source>invisible</source>
        <translation>invisible</translation>
    </message>
</context>
<context>
    <name>ContrastBadge</name>
    <message>
        <source> to </source>
        <extracomment>The colon of a contrast ratio read aloud: &quot;4.5 to 1&quot;; keep the spaces</extracomment>
        <translation> a </translation>
    </message>
</context>
<context>
    <name>ContrastComparisonView</name>
    <message>
        <source>Text and Background</source>
        <translation>Texto y fondo</translation>
    </message>
    <message>
        <source>Pick another color to see how the two read as text and background.</source>
        <translation>Capture otro color para ver cómo se leen los dos como texto y fondo.</translation>
    </message>
    <message>
        <source>Compared color</source>
        <translation>Color comparado</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Intercambiar</translation>
    </message>
    <message>
        <source>Swap text and background</source>
        <translation>Intercambiar texto y fondo</translation>
    </message>
    <message>
        <source>Sample text</source>
        <translation>Texto de ejemplo</translation>
    </message>
    <message>
        <source>Normal text</source>
        <translation>Texto normal</translation>
    </message>
    <message>
        <source>Large text</source>
        <translation>Texto grande</translation>
    </message>
    <message>
        <source>Non-text</source>
        <translation>No texto</translation>
    </message>
    <message>
        <source>APCA</source>
        <translation>APCA</translation>
    </message>
    <message>
        <source>%1 as text on %2</source>
        <translation>%1 como texto sobre %2</translation>
    </message>
    <message>
        <source>Preview: %1 text on %2</source>
        <translation>Vista previa: texto %1 sobre %2</translation>
    </message>
    <message>
        <source>Now %1 is the text</source>
        <translation>Ahora %1 es el texto</translation>
    </message>
    <message>
        <source> to 1</source>
        <extracomment>A contrast ratio read aloud: &quot;4.5 to 1&quot;; keep the spaces</extracomment>
        <translation> a 1</translation>
    </message>
    <message>
        <source>Contrast ratio %1</source>
        <translation>Relación de contraste %1</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>Lc %1</source>
        <translation>Lc %1</translation>
    </message>
    <message>
        <source>APCA: Lc %1, %2</source>
        <translation>APCA: Lc %1, %2</translation>
    </message>
</context>
<context>
    <name>FileExportDialogs</name>
    <message>
        <source>Export Colors</source>
        <translation>Exportar colores</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Plain Text (*.txt)</source>
        <translation>Texto sin formato (*.txt)</translation>
    </message>
    <message>
        <source>Export Failed</source>
        <translation>Falló la exportación</translation>
    </message>
</context>
<context>
    <name>FormatLine</name>
    <message>
        <source>Copy</source>
        <extracomment>The verb: what pressing the line does, copy its colour text</extracomment>
        <translation>Copiar</translation>
    </message>
</context>
<context>
    <name>HotkeyManager</name>
    <message>
        <source>Pick a color</source>
        <translation>Capturar un color</translation>
    </message>
    <message>
        <source>Show or hide Vantle</source>
        <translation>Mostrar u ocultar Vantle</translation>
    </message>
</context>
<context>
    <name>HotkeyRecorderView</name>
    <message>
        <source>Clear the %1 shortcut</source>
        <translation>Borrar el atajo «%1»</translation>
    </message>
    <message>
        <source>Press shortcut…</source>
        <translation>Pulse el atajo…</translation>
    </message>
    <message>
        <source>None - click to set</source>
        <translation>Ninguno: pulse para asignar</translation>
    </message>
</context>
<context>
    <name>KeyCodes</name>
    <message>
        <source>Ctrl</source>
        <extracomment>The Control key in a keyboard shortcut, as the desktop names it (&quot;Strg&quot; in German)</extracomment>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Alt</source>
        <extracomment>The Alt key in a keyboard shortcut, as the desktop names it</extracomment>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <extracomment>The Shift key in a keyboard shortcut, as the desktop names it (&quot;Umschalt&quot; in German)</extracomment>
        <translation>Mayús</translation>
    </message>
    <message>
        <source>Super</source>
        <extracomment>The Super (logo) key in a keyboard shortcut, as the desktop names it</extracomment>
        <translation>Súper</translation>
    </message>
</context>
<context>
    <name>OnboardingView</name>
    <message>
        <source>Pick Color</source>
        <translation>Capturar color</translation>
    </message>
    <message>
        <source>Last: #FF6B35</source>
        <translation>Último: #FF6B35</translation>
    </message>
    <message>
        <source>Start Using vantle</source>
        <translation>Empezar a usar vantle</translation>
    </message>
    <message>
        <source>You&apos;re all set.</source>
        <translation>Todo listo.</translation>
    </message>
    <message>
        <source>Look for the eyedropper icon in your system tray.</source>
        <translation>Busque el icono del cuentagotas en la bandeja del sistema.</translation>
    </message>
    <message>
        <source>Pick any color from anywhere on your screen with one click.</source>
        <translation>Capture cualquier color de cualquier parte de la pantalla con un clic.</translation>
    </message>
    <message>
        <source>The color value is copied to your clipboard instantly in your preferred format.</source>
        <translation>El valor del color se copia al instante en el portapapeles, en su formato preferido.</translation>
    </message>
    <message>
        <source>Pin your favorite colors and build a palette you can export anytime.</source>
        <translation>Ancle sus colores favoritos y cree una paleta que puede exportar cuando quiera.</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Empezar</translation>
    </message>
    <message>
        <source>Welcome to vantle</source>
        <translation>Bienvenido a vantle</translation>
    </message>
</context>
<context>
    <name>OnboardingWindow</name>
    <message>
        <source>Welcome to vantle</source>
        <translation>Bienvenido a vantle</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <comment>Translate this string to the string &apos;LTR&apos; in left-to-right languages or to &apos;RTL&apos; in right-to-left languages (such as Hebrew and Arabic) to get proper widget layout.</comment>
        <translation>LTR</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Software Update</source>
        <translation>Actualización de software</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>¡Está al día!</translation>
    </message>
    <message>
        <source>%1 %2 is the latest version.</source>
        <translation>%1 %2 es la versión más reciente.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>A new version of %1 is available!</source>
        <translation>¡Hay una nueva versión de %1!</translation>
    </message>
    <message>
        <source>%1 %2 is now available — you have %3. Would you like to download it now?</source>
        <translation>%1 %2 ya está disponible; usted tiene la %3. ¿Quiere descargarla ahora?</translation>
    </message>
    <message>
        <source>Release Notes:</source>
        <translation>Notas de la versión:</translation>
    </message>
    <message>
        <source>Read the release notes</source>
        <translation>Leer las notas de la versión</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Omitir esta versión</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Recordármelo más tarde</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descargar</translation>
    </message>
    <message>
        <source>Downloading %1…</source>
        <translation>Descargando %1…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Update Failed</source>
        <translation>Falló la actualización</translation>
    </message>
    <message>
        <source>%1 was downloaded in the background.</source>
        <translation>%1 se descargó en segundo plano.</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 se ha descargado.</translation>
    </message>
    <message>
        <source>The file is saved as %1. Install it the way you installed this version.</source>
        <translation>El archivo se guardó como %1. Instálelo como instaló esta versión.</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Vantle Settings</source>
        <translation>Preferencias de Vantle</translation>
    </message>
</context>
<context>
    <name>RenameColorSheet</name>
    <message>
        <source>Rename Color</source>
        <translation>Renombrar color</translation>
    </message>
    <message>
        <source>Color name (optional)</source>
        <translation>Nombre del color (opcional)</translation>
    </message>
    <message>
        <source>Color name</source>
        <translation>Nombre del color</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>vantle</source>
        <translation>vantle</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Pick any color from anywhere on your screen with one click.</source>
        <translation>Capture cualquier color de cualquier parte de la pantalla con un clic.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Automatically download updates</source>
        <translation>Descargar actualizaciones automáticamente</translation>
    </message>
    <message>
        <source>Vantle Website</source>
        <translation>Sitio web de Vantle</translation>
    </message>
    <message>
        <source>%1 Website</source>
        <translation>Sitio web de %1</translation>
    </message>
    <message>
        <source>Made by %1.</source>
        <translation>Hecho por %1.</translation>
    </message>
    <message>
        <source>Default format</source>
        <translation>Formato predeterminado</translation>
    </message>
    <message>
        <source>Color Format</source>
        <translation>Formato de color</translation>
    </message>
    <message>
        <source>Pick color</source>
        <translation>Capturar color</translation>
    </message>
    <message>
        <source>Toggle popup</source>
        <translation>Mostrar/ocultar ventana</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>On GNOME these shortcuts live among the custom shortcuts in Settings › Keyboard.</source>
        <translation>En GNOME estos atajos están entre los atajos personalizados de Configuración › Teclado.</translation>
    </message>
    <message>
        <source>Show colored dot for last picked color</source>
        <translation>Mostrar un punto del último color capturado</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>Icono de la bandeja</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Iniciar al iniciar sesión</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>History limit</source>
        <translation>Límite del historial</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Vaciar historial</translation>
    </message>
    <message>
        <source>Pinned colors will be preserved.</source>
        <translation>Los colores anclados se conservarán.</translation>
    </message>
    <message>
        <source>Data</source>
        <extracomment>Heading of the settings about the stored history</extracomment>
        <translation>Datos</translation>
    </message>
    <message>
        <source>Reduce History</source>
        <translation>Reducir historial</translation>
    </message>
    <message>
        <source>This will remove the oldest 1 color.</source>
        <translation>Se eliminará el color más antiguo.</translation>
    </message>
    <message numerus="yes">
        <source>This will remove the oldest %n colors.</source>
        <translation>
            <numerusform>Se eliminará el color más antiguo.</numerusform>
            <numerusform>Se eliminarán los %n colores más antiguos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation>Más información</translation>
    </message>
    <message>
        <source>No other %1 applications are listed in this build.</source>
        <translation>Esta compilación no incluye otras aplicaciones de %1.</translation>
    </message>
    <message>
        <source>All %1 applications</source>
        <translation>Todas las aplicaciones de %1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>More %1</source>
        <extracomment>The tab of the maker&apos;s other applications; %1 is the maker&apos;s name</extracomment>
        <translation>Más de %1</translation>
    </message>
</context>
<context>
    <name>UpdaterController</name>
    <message>
        <source>This app</source>
        <translation>Esta aplicación</translation>
    </message>
</context>
</TS>
