<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>AppDelegate</name>
    <message>
        <source>Pick Color</source>
        <translation>Preleva colore</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Impostazioni…</translation>
    </message>
    <message>
        <source>Quit vantle</source>
        <translation>Esci da vantle</translation>
    </message>
</context>
<context>
    <name>AppcastUpdater</name>
    <message>
        <source>This copy of %1 has no key to verify updates with, so version %2 was not downloaded. Please get it from the %1 website.</source>
        <translation>Questa copia di %1 non ha una chiave per verificare gli aggiornamenti, quindi la versione %2 non è stata scaricata. Scaricarla dal sito web di %1.</translation>
    </message>
    <message>
        <source>The update could not be saved in %1.</source>
        <translation>Impossibile salvare l’aggiornamento in %1.</translation>
    </message>
    <message>
        <source>The update could not be saved in %1, so the partial file was deleted.</source>
        <translation>Impossibile salvare l’aggiornamento in %1, quindi il file parziale è stato eliminato.</translation>
    </message>
    <message>
        <source>The update could not be downloaded, so the partial file was deleted.</source>
        <translation>Impossibile scaricare l’aggiornamento, quindi il file parziale è stato eliminato.</translation>
    </message>
    <message>
        <source>This copy of %1 has no usable key to verify updates with, so the downloaded file was deleted. Please get the new version from the %1 website.</source>
        <translation>Questa copia di %1 non ha una chiave valida per verificare gli aggiornamenti, quindi il file scaricato è stato eliminato. Scaricare la nuova versione dal sito web di %1.</translation>
    </message>
    <message>
        <source>The downloaded file does not have the size the update feed announced, so it was deleted.</source>
        <translation>Il file scaricato non ha la dimensione annunciata dal feed degli aggiornamenti, quindi è stato eliminato.</translation>
    </message>
    <message>
        <source>The downloaded file does not carry a valid signature from the maker of %1, so it was deleted.</source>
        <translation>Il file scaricato non ha una firma valida del produttore di %1, quindi è stato eliminato.</translation>
    </message>
    <message>
        <source>The downloaded file could not be read back for checking, so it was deleted.</source>
        <translation>Impossibile rileggere il file scaricato per verificarlo, quindi è stato eliminato.</translation>
    </message>
</context>
<context>
    <name>ColorDetailView</name>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Contrast Ratios</source>
        <translation>Rapporti di contrasto</translation>
    </message>
    <message>
        <source>vs White</source>
        <translation>su bianco</translation>
    </message>
    <message>
        <source>vs Black</source>
        <translation>su nero</translation>
    </message>
    <message>
        <source>Color details</source>
        <translation>Dettagli del colore</translation>
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
        <translation>Hex (minuscolo)</translation>
    </message>
    <message>
        <source>RGB (decimal)</source>
        <extracomment>The name of a colour format: red, green and blue as whole numbers 0 to 255, as in 255, 107, 54</extracomment>
        <translation>RGB (decimale)</translation>
    </message>
</context>
<context>
    <name>ColorListView</name>
    <message>
        <source>colors</source>
        <extracomment>Spoken after the number of colours in the history (&quot;3 colors&quot;)</extracomment>
        <translation>colori</translation>
    </message>
    <message>
        <source>Pick Color</source>
        <translation>Preleva colore</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Export colors</source>
        <translation>Esporta colori</translation>
    </message>
    <message>
        <source>Export Pinned as Text</source>
        <translation>Esporta fissati come testo</translation>
    </message>
    <message>
        <source>Export Pinned as JSON</source>
        <translation>Esporta fissati come JSON</translation>
    </message>
    <message>
        <source>Export All as Text</source>
        <translation>Esporta tutti come testo</translation>
    </message>
    <message>
        <source>Export All as JSON</source>
        <translation>Esporta tutti come JSON</translation>
    </message>
    <message>
        <source>Quit vantle</source>
        <translation>Esci da vantle</translation>
    </message>
    <message>
        <source>No colors yet</source>
        <translation>Ancora nessun colore</translation>
    </message>
    <message>
        <source>Click Pick Color to get started</source>
        <translation>Fare clic su «Preleva colore» per iniziare</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Colori</translation>
    </message>
    <message>
        <source>PINNED</source>
        <extracomment>Heading of the list of pinned colours, in capitals where the language has them</extracomment>
        <translation>FISSATI</translation>
    </message>
    <message>
        <source>RECENT</source>
        <translation>RECENTI</translation>
    </message>
    <message>
        <source>Picking…</source>
        <translation>Prelievo…</translation>
    </message>
</context>
<context>
    <name>ColorListViewModel</name>
    <message>
        <source>Copied %1</source>
        <extracomment>The confirmation after a copy; %1 is the colour text put on the clipboard</extracomment>
        <translation>Copiato %1</translation>
    </message>
    <message>
        <source>Not copied: the clipboard is not available</source>
        <translation>Non copiato: gli appunti non sono disponibili</translation>
    </message>
    <message>
        <source>“%1” could not be written: %2</source>
        <translation>Impossibile scrivere «%1»: %2</translation>
    </message>
</context>
<context>
    <name>ColorRowView</name>
    <message>
        <source>pinned</source>
        <extracomment>Spoken state of a colour kept in the palette</extracomment>
        <translation>fissato</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Unpin</source>
        <extracomment>The verbs of the menu: keep the colour in the palette, or take it out (Unpin)</extracomment>
        <translation>Sgancia</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Fissa</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Rinomina…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>opzione sconosciuta «%1»</translation>
    </message>
    <message>
        <source>cannot read the colour &quot;%1&quot;; accepted: %2</source>
        <translation>impossibile leggere il colore «%1»; accettati: %2</translation>
    </message>
    <message>
        <source>any text Vantle writes (#RRGGBB, rgb(), rgba(), hsl(), hsb(), R, G, B, Color(), UIColor()), #RGB, RRGGBB, or r,g,b[,a] with components such as 1.0,0.42,0.21</source>
        <translation>qualsiasi testo scritto da Vantle (#RRGGBB, rgb(), rgba(), hsl(), hsb(), R, G, B, Color(), UIColor()), #RGB, RRGGBB, o r,g,b[,a] con componenti come 1.0,0.42,0.21</translation>
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
        <translation>Uso: vantle [COMANDO] [OPZIONI]

Senza comando, Vantle si avvia nell’area di notifica (o, se è già in
esecuzione, mostra o nasconde la sua finestra).

Comandi:
  format [--format NAME | --all] [--contrast] COLOR...
      Stampa colori come testo. COLOR è qualsiasi testo scritto da Vantle
      (rgb(...), hsl(...)...), #RGB, #RRGGBB, RRGGBB, o componenti sRGB r,g,b
      o r,g,b,a tra 0 e 1. Senza --format si usa il formato preferito.
      --all stampa tutti i nove formati come LABEL&lt;TAB&gt;TEXT; --contrast
      aggiunge il contrasto WCAG rispetto a bianco e nero.
        vantle format &apos;#FF6B36&apos; --format hsl
        vantle format --all --contrast 1.0,0.42,0.21
  contrast [--json] FOREGROUND BACKGROUND
      Stampa il rapporto di contrasto WCAG 2 di un colore del testo sul suo
      sfondo, i livelli per testo normale, testo grande ed elementi non
      testuali, e il contrasto di luminosità APCA Lc; --json stampa un
      oggetto. Un colore è qualsiasi testo scritto da Vantle, #RGB, o le
      forme lette da `format`.
        vantle contrast &apos;#888&apos; &apos;#FFF&apos;
  export [--pinned] [--json] [-o FILE]
      Stampa la cronologia salvata (o solo i colori fissati) come testo nel
      formato preferito, o come JSON; con -o la scrive in modo atomico in FILE.
        vantle export --pinned --json -o palette.json
  pick [--print [--format NAME]]
      Chiede al Vantle in esecuzione di avviare un prelievo (associarlo a un
      tasto nelle impostazioni della tastiera del desktop). Con --print,
      preleva in questo processo e stampa il colore; stato di uscita 1 se
      annullato.
        vantle pick
        vantle pick --print --format hexLower
  toggle
      Chiede al Vantle in esecuzione di mostrare o nascondere la finestra.
        vantle toggle

Opzioni:
  -h, --help     Mostra questo aiuto.
  -v, --version  Mostra la versione.

Impostazioni: %1
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
Il rapporto di contrasto WCAG 2 di FOREGROUND (testo, un’icona, un bordo) su
BACKGROUND, i suoi livelli per testo normale (AA 4.5, AAA 7), testo grande
(AA 3, AAA 4.5) ed elementi non testuali (3), e il contrasto di luminosità
APCA Lc (negativo per chiaro su scuro). Un primo piano traslucido viene prima
disegnato sullo sfondo; lo sfondo deve essere opaco.</translation>
    </message>
    <message>
        <source>Colours: %1</source>
        <translation>Colori: %1</translation>
    </message>
    <message numerus="yes">
        <source>needs a foreground and a background colour, %n given</source>
        <translation>
            <numerusform>servono un colore di primo piano e uno di sfondo, %n fornito</numerusform>
            <numerusform>servono un colore di primo piano e uno di sfondo, %n forniti</numerusform>
        </translation>
    </message>
    <message>
        <source>the background must be opaque (its alpha is %1)</source>
        <translation>lo sfondo deve essere opaco (il suo alfa è %1)</translation>
    </message>
    <message>
        <source>-o needs a file name</source>
        <translation>-o richiede un nome di file</translation>
    </message>
    <message>
        <source>Usage: vantle export [--pinned] [--json] [-o FILE]
Prints the stored colour history (with --pinned only the pinned colours), newest
first, as text in the preferred format or as JSON; -o writes it to FILE.</source>
        <translation>Uso: vantle export [--pinned] [--json] [-o FILE]
Stampa la cronologia dei colori salvata (con --pinned solo i colori fissati),
dal più recente, come testo nel formato preferito o come JSON; -o la scrive
in FILE.</translation>
    </message>
    <message>
        <source>unknown argument &quot;%1&quot;</source>
        <translation>argomento sconosciuto «%1»</translation>
    </message>
    <message>
        <source>the stored colour history cannot be read (%1)</source>
        <translation>impossibile leggere la cronologia dei colori salvata (%1)</translation>
    </message>
    <message>
        <source>cannot write &quot;%1&quot;: %2</source>
        <translation>impossibile scrivere «%1»: %2</translation>
    </message>
    <message>
        <source>--format needs a format name; accepted: %1</source>
        <translation>--format richiede il nome di un formato; accettati: %1</translation>
    </message>
    <message>
        <source>unknown format &quot;%1&quot;; accepted: %2</source>
        <translation>formato sconosciuto «%1»; accettati: %2</translation>
    </message>
    <message>
        <source>Usage: vantle format [--format NAME | --all] [--contrast] COLOR...</source>
        <translation>Uso: vantle format [--format NAME | --all] [--contrast] COLOR...</translation>
    </message>
    <message>
        <source>Formats: %1</source>
        <translation>Formati: %1</translation>
    </message>
    <message>
        <source>--format and --all cannot be used together</source>
        <translation>--format e --all non possono essere usati insieme</translation>
    </message>
    <message>
        <source>no colour given; accepted: %1</source>
        <translation>nessun colore fornito; accettati: %1</translation>
    </message>
    <message>
        <source>Vantle is not running.</source>
        <translation>Vantle non è in esecuzione.</translation>
    </message>
    <message>
        <source>the running Vantle did not answer.</source>
        <translation>il Vantle in esecuzione non ha risposto.</translation>
    </message>
    <message>
        <source>the running Vantle did not answer (%1).</source>
        <translation>il Vantle in esecuzione non ha risposto (%1).</translation>
    </message>
    <message>
        <source>the command &quot;%1&quot; is not available in this build</source>
        <translation>il comando «%1» non è disponibile in questa build</translation>
    </message>
    <message>
        <source>the desktop part of Vantle cannot be loaded (%1). Reinstalling Vantle puts it back.</source>
        <translation>impossibile caricare la parte desktop di Vantle (%1). Reinstallare Vantle la ripristina.</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;</source>
        <translation>comando sconosciuto «%1»</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>argomento inatteso «%1»</translation>
    </message>
    <message>
        <source>Start it with `vantle` (or from your applications menu) first.</source>
        <translation>Avviarlo prima con `vantle` (o dal menu delle applicazioni).</translation>
    </message>
</context>
<context>
    <name>Contrast</name>
    <message>
        <source>body text</source>
        <translation>testo del corpo</translation>
    </message>
    <message>
        <source>large or bold text</source>
        <translation>testo grande o in grassetto</translation>
    </message>
    <message>
        <source>headlines</source>
        <translation>titoli</translation>
    </message>
    <message>
        <source>non-text only</source>
        <translation>solo elementi non testuali</translation>
    </message>
    <message>
        <source>dividers and disabled parts only</source>
        <translation>solo separatori ed elementi disattivati</translation>
    </message>
    <message>
        <source>invisible</source>
        <translation>invisibile</translation>
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
        <translation>Testo e sfondo</translation>
    </message>
    <message>
        <source>Pick another color to see how the two read as text and background.</source>
        <translation>Prelevare un altro colore per vedere come si leggono i due come testo e sfondo.</translation>
    </message>
    <message>
        <source>Compared color</source>
        <translation>Colore confrontato</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Scambia</translation>
    </message>
    <message>
        <source>Swap text and background</source>
        <translation>Scambia testo e sfondo</translation>
    </message>
    <message>
        <source>Sample text</source>
        <translation>Testo di esempio</translation>
    </message>
    <message>
        <source>Normal text</source>
        <translation>Testo normale</translation>
    </message>
    <message>
        <source>Large text</source>
        <translation>Testo grande</translation>
    </message>
    <message>
        <source>Non-text</source>
        <translation>Non testo</translation>
    </message>
    <message>
        <source>APCA</source>
        <translation>APCA</translation>
    </message>
    <message>
        <source>%1 as text on %2</source>
        <translation>%1 come testo su %2</translation>
    </message>
    <message>
        <source>Preview: %1 text on %2</source>
        <translation>Anteprima: testo %1 su %2</translation>
    </message>
    <message>
        <source>Now %1 is the text</source>
        <translation>Ora %1 è il testo</translation>
    </message>
    <message>
        <source> to 1</source>
        <extracomment>A contrast ratio read aloud: &quot;4.5 to 1&quot;; keep the spaces</extracomment>
        <translation> a 1</translation>
    </message>
    <message>
        <source>Contrast ratio %1</source>
        <translation>Rapporto di contrasto %1</translation>
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
        <translation>Esporta colori</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Plain Text (*.txt)</source>
        <translation>Testo semplice (*.txt)</translation>
    </message>
    <message>
        <source>Export Failed</source>
        <translation>Esportazione non riuscita</translation>
    </message>
</context>
<context>
    <name>FormatLine</name>
    <message>
        <source>Copy</source>
        <extracomment>The verb: what pressing the line does, copy its colour text</extracomment>
        <translation>Copia</translation>
    </message>
</context>
<context>
    <name>HotkeyManager</name>
    <message>
        <source>Pick a color</source>
        <translation>Preleva un colore</translation>
    </message>
    <message>
        <source>Show or hide Vantle</source>
        <translation>Mostra o nascondi Vantle</translation>
    </message>
</context>
<context>
    <name>HotkeyRecorderView</name>
    <message>
        <source>Clear the %1 shortcut</source>
        <translation>Cancella la scorciatoia «%1»</translation>
    </message>
    <message>
        <source>Press shortcut…</source>
        <translation>Premere la scorciatoia…</translation>
    </message>
    <message>
        <source>None - click to set</source>
        <translation>Nessuna - fare clic per impostare</translation>
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
        <translation>Maiusc</translation>
    </message>
    <message>
        <source>Super</source>
        <extracomment>The Super (logo) key in a keyboard shortcut, as the desktop names it</extracomment>
        <translation>Super</translation>
    </message>
</context>
<context>
    <name>OnboardingView</name>
    <message>
        <source>Pick Color</source>
        <translation>Preleva colore</translation>
    </message>
    <message>
        <source>Last: #FF6B35</source>
        <translation>Ultimo: #FF6B35</translation>
    </message>
    <message>
        <source>Start Using vantle</source>
        <translation>Inizia a usare vantle</translation>
    </message>
    <message>
        <source>You&apos;re all set.</source>
        <translation>È tutto pronto.</translation>
    </message>
    <message>
        <source>Look for the eyedropper icon in your system tray.</source>
        <translation>Cercare l’icona del contagocce nell’area di notifica.</translation>
    </message>
    <message>
        <source>Pick any color from anywhere on your screen with one click.</source>
        <translation>Preleva qualsiasi colore da qualsiasi punto dello schermo con un clic.</translation>
    </message>
    <message>
        <source>The color value is copied to your clipboard instantly in your preferred format.</source>
        <translation>Il valore del colore viene copiato subito negli appunti nel formato preferito.</translation>
    </message>
    <message>
        <source>Pin your favorite colors and build a palette you can export anytime.</source>
        <translation>Fissa i colori preferiti e crea una tavolozza da esportare in qualsiasi momento.</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Inizia</translation>
    </message>
    <message>
        <source>Welcome to vantle</source>
        <translation>Benvenuti in vantle</translation>
    </message>
</context>
<context>
    <name>OnboardingWindow</name>
    <message>
        <source>Welcome to vantle</source>
        <translation>Benvenuti in vantle</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
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
        <translation>Aggiornamento software</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>È tutto aggiornato!</translation>
    </message>
    <message>
        <source>%1 %2 is the latest version.</source>
        <translation>%1 %2 è la versione più recente.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>A new version of %1 is available!</source>
        <translation>È disponibile una nuova versione di %1!</translation>
    </message>
    <message>
        <source>%1 %2 is now available — you have %3. Would you like to download it now?</source>
        <translation>%1 %2 è ora disponibile (installata: %3). Scaricarla adesso?</translation>
    </message>
    <message>
        <source>Release Notes:</source>
        <translation>Note di rilascio:</translation>
    </message>
    <message>
        <source>Read the release notes</source>
        <translation>Leggi le note di rilascio</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Salta questa versione</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Ricordamelo più tardi</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Scarica</translation>
    </message>
    <message>
        <source>Downloading %1…</source>
        <translation>Scaricamento di %1…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Update Failed</source>
        <translation>Aggiornamento non riuscito</translation>
    </message>
    <message>
        <source>%1 was downloaded in the background.</source>
        <translation>%1 è stato scaricato in background.</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 è stato scaricato.</translation>
    </message>
    <message>
        <source>The file is saved as %1. Install it the way you installed this version.</source>
        <translation>Il file è salvato come %1. Installarlo come è stata installata questa versione.</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostra nella cartella</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Vantle Settings</source>
        <translation>Impostazioni di Vantle</translation>
    </message>
</context>
<context>
    <name>RenameColorSheet</name>
    <message>
        <source>Rename Color</source>
        <translation>Rinomina colore</translation>
    </message>
    <message>
        <source>Color name (optional)</source>
        <translation>Nome del colore (facoltativo)</translation>
    </message>
    <message>
        <source>Color name</source>
        <translation>Nome del colore</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
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
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>Pick any color from anywhere on your screen with one click.</source>
        <translation>Preleva qualsiasi colore da qualsiasi punto dello schermo con un clic.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Controlla aggiornamenti…</translation>
    </message>
    <message>
        <source>Automatically download updates</source>
        <translation>Scarica automaticamente gli aggiornamenti</translation>
    </message>
    <message>
        <source>Vantle Website</source>
        <translation>Sito web di Vantle</translation>
    </message>
    <message>
        <source>%1 Website</source>
        <translation>Sito web di %1</translation>
    </message>
    <message>
        <source>Made by %1.</source>
        <translation>Realizzato da %1.</translation>
    </message>
    <message>
        <source>Default format</source>
        <translation>Formato predefinito</translation>
    </message>
    <message>
        <source>Color Format</source>
        <translation>Formato colore</translation>
    </message>
    <message>
        <source>Pick color</source>
        <translation>Preleva colore</translation>
    </message>
    <message>
        <source>Toggle popup</source>
        <translation>Mostra/nascondi finestra</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Scorciatoie da tastiera</translation>
    </message>
    <message>
        <source>On GNOME these shortcuts live among the custom shortcuts in Settings › Keyboard.</source>
        <translation>In GNOME queste scorciatoie sono tra le scorciatoie personalizzate in Impostazioni › Tastiera.</translation>
    </message>
    <message>
        <source>Show colored dot for last picked color</source>
        <translation>Mostra un punto dell’ultimo colore prelevato</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>Icona nell’area di notifica</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Avvia all’accesso</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>History limit</source>
        <translation>Limite cronologia</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Cancella cronologia</translation>
    </message>
    <message>
        <source>Pinned colors will be preserved.</source>
        <translation>I colori fissati saranno conservati.</translation>
    </message>
    <message>
        <source>Data</source>
        <extracomment>Heading of the settings about the stored history</extracomment>
        <translation>Dati</translation>
    </message>
    <message>
        <source>Reduce History</source>
        <translation>Riduci cronologia</translation>
    </message>
    <message>
        <source>This will remove the oldest 1 color.</source>
        <translation>Verrà rimosso il colore più vecchio.</translation>
    </message>
    <message numerus="yes">
        <source>This will remove the oldest %n colors.</source>
        <translation>
            <numerusform>Verrà rimosso il colore più vecchio.</numerusform>
            <numerusform>Verranno rimossi i %n colori più vecchi.</numerusform>
        </translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation>Ulteriori informazioni</translation>
    </message>
    <message>
        <source>No other %1 applications are listed in this build.</source>
        <translation>In questa build non sono elencate altre applicazioni di %1.</translation>
    </message>
    <message>
        <source>All %1 applications</source>
        <translation>Tutte le applicazioni di %1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>More %1</source>
        <extracomment>The tab of the maker&apos;s other applications; %1 is the maker&apos;s name</extracomment>
        <translation>Altro da %1</translation>
    </message>
</context>
<context>
    <name>UpdaterController</name>
    <message>
        <source>This app</source>
        <translation>Questa applicazione</translation>
    </message>
</context>
</TS>
