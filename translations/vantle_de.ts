<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AppDelegate</name>
    <message>
        <source>Pick Color</source>
        <translation>Farbe aufnehmen</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Quit vantle</source>
        <translation>vantle beenden</translation>
    </message>
</context>
<context>
    <name>AppcastUpdater</name>
    <message>
        <source>This copy of %1 has no key to verify updates with, so version %2 was not downloaded. Please get it from the %1 website.</source>
        <translation>Diese Kopie von %1 hat keinen Schlüssel, um Aktualisierungen zu prüfen, daher wurde Version %2 nicht heruntergeladen. Bitte laden Sie sie von der Website von %1.</translation>
    </message>
    <message>
        <source>The update could not be saved in %1.</source>
        <translation>Die Aktualisierung konnte nicht in %1 gespeichert werden.</translation>
    </message>
    <message>
        <source>The update could not be saved in %1, so the partial file was deleted.</source>
        <translation>Die Aktualisierung konnte nicht in %1 gespeichert werden, daher wurde die unvollständige Datei gelöscht.</translation>
    </message>
    <message>
        <source>The update could not be downloaded, so the partial file was deleted.</source>
        <translation>Die Aktualisierung konnte nicht heruntergeladen werden, daher wurde die unvollständige Datei gelöscht.</translation>
    </message>
    <message>
        <source>This copy of %1 has no usable key to verify updates with, so the downloaded file was deleted. Please get the new version from the %1 website.</source>
        <translation>Diese Kopie von %1 hat keinen brauchbaren Schlüssel, um Aktualisierungen zu prüfen, daher wurde die heruntergeladene Datei gelöscht. Bitte laden Sie die neue Version von der Website von %1.</translation>
    </message>
    <message>
        <source>The downloaded file does not have the size the update feed announced, so it was deleted.</source>
        <translation>Die heruntergeladene Datei hat nicht die angekündigte Größe und wurde daher gelöscht.</translation>
    </message>
    <message>
        <source>The downloaded file does not carry a valid signature from the maker of %1, so it was deleted.</source>
        <translation>Die heruntergeladene Datei trägt keine gültige Signatur des Herstellers von %1 und wurde daher gelöscht.</translation>
    </message>
    <message>
        <source>The downloaded file could not be read back for checking, so it was deleted.</source>
        <translation>Die heruntergeladene Datei konnte zur Prüfung nicht gelesen werden und wurde daher gelöscht.</translation>
    </message>
</context>
<context>
    <name>ColorDetailView</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Contrast Ratios</source>
        <translation>Kontrastverhältnisse</translation>
    </message>
    <message>
        <source>vs White</source>
        <translation>zu Weiß</translation>
    </message>
    <message>
        <source>vs Black</source>
        <translation>zu Schwarz</translation>
    </message>
    <message>
        <source>Color details</source>
        <translation>Farbdetails</translation>
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
        <translation>Hex (Kleinbuchstaben)</translation>
    </message>
    <message>
        <source>RGB (decimal)</source>
        <extracomment>The name of a colour format: red, green and blue as whole numbers 0 to 255, as in 255, 107, 54</extracomment>
        <translation>RGB (dezimal)</translation>
    </message>
</context>
<context>
    <name>ColorListView</name>
    <message>
        <source>colors</source>
        <extracomment>Spoken after the number of colours in the history (&quot;3 colors&quot;)</extracomment>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Pick Color</source>
        <translation>Farbe aufnehmen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Export colors</source>
        <translation>Farben exportieren</translation>
    </message>
    <message>
        <source>Export Pinned as Text</source>
        <translation>Angeheftete als Text exportieren</translation>
    </message>
    <message>
        <source>Export Pinned as JSON</source>
        <translation>Angeheftete als JSON exportieren</translation>
    </message>
    <message>
        <source>Export All as Text</source>
        <translation>Alle als Text exportieren</translation>
    </message>
    <message>
        <source>Export All as JSON</source>
        <translation>Alle als JSON exportieren</translation>
    </message>
    <message>
        <source>Quit vantle</source>
        <translation>vantle beenden</translation>
    </message>
    <message>
        <source>No colors yet</source>
        <translation>Noch keine Farben</translation>
    </message>
    <message>
        <source>Click Pick Color to get started</source>
        <translation>Klicken Sie auf „Farbe aufnehmen“, um zu beginnen</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>PINNED</source>
        <extracomment>Heading of the list of pinned colours, in capitals where the language has them</extracomment>
        <translation>ANGEHEFTET</translation>
    </message>
    <message>
        <source>RECENT</source>
        <translation>ZULETZT</translation>
    </message>
    <message>
        <source>Picking…</source>
        <translation>Aufnahme …</translation>
    </message>
</context>
<context>
    <name>ColorListViewModel</name>
    <message>
        <source>Copied %1</source>
        <extracomment>The confirmation after a copy; %1 is the colour text put on the clipboard</extracomment>
        <translation>%1 kopiert</translation>
    </message>
    <message>
        <source>Not copied: the clipboard is not available</source>
        <translation>Nicht kopiert: Die Zwischenablage ist nicht verfügbar</translation>
    </message>
    <message>
        <source>“%1” could not be written: %2</source>
        <translation>„%1“ konnte nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>ColorRowView</name>
    <message>
        <source>pinned</source>
        <extracomment>Spoken state of a colour kept in the palette</extracomment>
        <translation>angeheftet</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Unpin</source>
        <extracomment>The verbs of the menu: keep the colour in the palette, or take it out (Unpin)</extracomment>
        <translation>Lösen</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Anheften</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Umbenennen …</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>unbekannte Option „%1“</translation>
    </message>
    <message>
        <source>cannot read the colour &quot;%1&quot;; accepted: %2</source>
        <translation>die Farbe „%1“ kann nicht gelesen werden; akzeptiert: %2</translation>
    </message>
    <message>
        <source>any text Vantle writes (#RRGGBB, rgb(), rgba(), hsl(), hsb(), R, G, B, Color(), UIColor()), #RGB, RRGGBB, or r,g,b[,a] with components such as 1.0,0.42,0.21</source>
        <translation>jeder Text, den Vantle schreibt (#RRGGBB, rgb(), rgba(), hsl(), hsb(), R, G, B, Color(), UIColor()), #RGB, RRGGBB oder r,g,b[,a] mit Anteilen wie 1.0,0.42,0.21</translation>
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
        <translation>Aufruf: vantle [BEFEHL] [OPTIONEN]

Ohne Befehl startet Vantle im Systembereich der Kontrollleiste (oder zeigt bzw.
verbirgt sein Fenster, wenn es schon läuft).

Befehle:
  format [--format NAME | --all] [--contrast] COLOR...
      Farben als Text ausgeben. COLOR ist jeder Text, den Vantle schreibt
      (rgb(...), hsl(...)...), #RGB, #RRGGBB, RRGGBB oder sRGB-Anteile r,g,b
      oder r,g,b,a zwischen 0 und 1. Ohne --format gilt das bevorzugte Format.
      --all gibt alle neun Formate als LABEL&lt;TAB&gt;TEXT aus; --contrast fügt den
      WCAG-Kontrast zu Weiß und Schwarz hinzu.
        vantle format &apos;#FF6B36&apos; --format hsl
        vantle format --all --contrast 1.0,0.42,0.21
  contrast [--json] FOREGROUND BACKGROUND
      Das WCAG-2-Kontrastverhältnis einer Textfarbe auf ihrem Hintergrund
      ausgeben, die Stufen für normalen Text, großen Text und Nicht-Text-Teile
      sowie den APCA-Helligkeitskontrast Lc; --json gibt ein Objekt aus. Eine
      Farbe ist jeder Text, den Vantle schreibt, #RGB oder was `format` liest.
        vantle contrast &apos;#888&apos; &apos;#FFF&apos;
  export [--pinned] [--json] [-o FILE]
      Den gespeicherten Verlauf (oder nur die angehefteten Farben) als Text im
      bevorzugten Format oder als JSON ausgeben; mit -o atomar in FILE
      schreiben.
        vantle export --pinned --json -o palette.json
  pick [--print [--format NAME]]
      Das laufende Vantle eine Farbe aufnehmen lassen (legen Sie das in den
      Tastatureinstellungen Ihrer Arbeitsumgebung auf eine Taste). Mit --print
      in diesem Prozess aufnehmen und die Farbe ausgeben; Rückgabewert 1 bei
      Abbruch.
        vantle pick
        vantle pick --print --format hexLower
  toggle
      Das Fenster des laufenden Vantle zeigen oder verbergen.
        vantle toggle

Optionen:
  -h, --help     Diese Hilfe anzeigen.
  -v, --version  Die Version anzeigen.

Einstellungen:
  %1
</translation>
    </message>
    <message>
        <source>Usage: vantle contrast [--json] FOREGROUND BACKGROUND
The WCAG 2 contrast ratio of FOREGROUND (text, an icon, a border) on
BACKGROUND, its grades for normal text (AA 4.5, AAA 7), large text (AA 3,
AAA 4.5) and non-text parts (3), and the APCA lightness contrast Lc
(negative for light on dark). A translucent foreground is drawn on the
background first; the background must be opaque.</source>
        <translation>Aufruf: vantle contrast [--json] FOREGROUND BACKGROUND
Das WCAG-2-Kontrastverhältnis von FOREGROUND (Text, ein Symbol, ein Rahmen)
auf BACKGROUND, seine Stufen für normalen Text (AA 4.5, AAA 7), großen Text
(AA 3, AAA 4.5) und Nicht-Text-Teile (3) sowie der APCA-Helligkeitskontrast Lc
(negativ für Hell auf Dunkel). Ein durchscheinender Vordergrund wird zuerst
auf den Hintergrund gezeichnet; der Hintergrund muss deckend sein.</translation>
    </message>
    <message>
        <source>Colours: %1</source>
        <translation>Farben: %1</translation>
    </message>
    <message numerus="yes">
        <source>needs a foreground and a background colour, %n given</source>
        <translation>
            <numerusform>braucht eine Vorder- und eine Hintergrundfarbe, %n angegeben</numerusform>
            <numerusform>braucht eine Vorder- und eine Hintergrundfarbe, %n angegeben</numerusform>
        </translation>
    </message>
    <message>
        <source>the background must be opaque (its alpha is %1)</source>
        <translation>der Hintergrund muss deckend sein (sein Alpha ist %1)</translation>
    </message>
    <message>
        <source>-o needs a file name</source>
        <translation>-o braucht einen Dateinamen</translation>
    </message>
    <message>
        <source>Usage: vantle export [--pinned] [--json] [-o FILE]
Prints the stored colour history (with --pinned only the pinned colours), newest
first, as text in the preferred format or as JSON; -o writes it to FILE.</source>
        <translation>Aufruf: vantle export [--pinned] [--json] [-o FILE]
Gibt den gespeicherten Farbverlauf (mit --pinned nur die angehefteten Farben),
neueste zuerst, als Text im bevorzugten Format oder als JSON aus; -o schreibt
ihn in FILE.</translation>
    </message>
    <message>
        <source>unknown argument &quot;%1&quot;</source>
        <translation>unbekanntes Argument „%1“</translation>
    </message>
    <message>
        <source>the stored colour history cannot be read (%1)</source>
        <translation>der gespeicherte Farbverlauf kann nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>cannot write &quot;%1&quot;: %2</source>
        <translation>„%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>--format needs a format name; accepted: %1</source>
        <translation>--format braucht einen Formatnamen; akzeptiert: %1</translation>
    </message>
    <message>
        <source>unknown format &quot;%1&quot;; accepted: %2</source>
        <translation>unbekanntes Format „%1“; akzeptiert: %2</translation>
    </message>
    <message>
        <source>Usage: vantle format [--format NAME | --all] [--contrast] COLOR...</source>
        <translation>Aufruf: vantle format [--format NAME | --all] [--contrast] COLOR...</translation>
    </message>
    <message>
        <source>Formats: %1</source>
        <translation>Formate: %1</translation>
    </message>
    <message>
        <source>--format and --all cannot be used together</source>
        <translation>--format und --all können nicht zusammen verwendet werden</translation>
    </message>
    <message>
        <source>no colour given; accepted: %1</source>
        <translation>keine Farbe angegeben; akzeptiert: %1</translation>
    </message>
    <message>
        <source>Vantle is not running.</source>
        <translation>Vantle läuft nicht.</translation>
    </message>
    <message>
        <source>the running Vantle did not answer.</source>
        <translation>das laufende Vantle hat nicht geantwortet.</translation>
    </message>
    <message>
        <source>the running Vantle did not answer (%1).</source>
        <translation>das laufende Vantle hat nicht geantwortet (%1).</translation>
    </message>
    <message>
        <source>the command &quot;%1&quot; is not available in this build</source>
        <translation>der Befehl „%1“ ist in dieser Ausgabe nicht verfügbar</translation>
    </message>
    <message>
        <source>the desktop part of Vantle cannot be loaded (%1). Reinstalling Vantle puts it back.</source>
        <translation>der Desktop-Teil von Vantle kann nicht geladen werden (%1). Eine Neuinstallation von Vantle stellt ihn wieder her.</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;</source>
        <translation>unbekannter Befehl „%1“</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>unerwartetes Argument „%1“</translation>
    </message>
    <message>
        <source>Start it with `vantle` (or from your applications menu) first.</source>
        <translation>Starten Sie es zuerst mit `vantle` (oder aus dem Anwendungsmenü).</translation>
    </message>
</context>
<context>
    <name>Contrast</name>
    <message>
        <source>body text</source>
        <translation>Fließtext</translation>
    </message>
    <message>
        <source>large or bold text</source>
        <translation>großer oder fetter Text</translation>
    </message>
    <message>
        <source>headlines</source>
        <translation>Überschriften</translation>
    </message>
    <message>
        <source>non-text only</source>
        <translation>nur Nicht-Text</translation>
    </message>
    <message>
        <source>dividers and disabled parts only</source>
        <translation>nur Trennlinien und deaktivierte Elemente</translation>
    </message>
    <message>
        <source>invisible</source>
        <translation>unsichtbar</translation>
    </message>
</context>
<context>
    <name>ContrastBadge</name>
    <message>
        <source> to </source>
        <extracomment>The colon of a contrast ratio read aloud: &quot;4.5 to 1&quot;; keep the spaces</extracomment>
        <translation> zu </translation>
    </message>
</context>
<context>
    <name>ContrastComparisonView</name>
    <message>
        <source>Text and Background</source>
        <translation>Text und Hintergrund</translation>
    </message>
    <message>
        <source>Pick another color to see how the two read as text and background.</source>
        <translation>Nehmen Sie eine weitere Farbe auf, um zu sehen, wie sich beide als Text und Hintergrund lesen.</translation>
    </message>
    <message>
        <source>Compared color</source>
        <translation>Verglichene Farbe</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Tauschen</translation>
    </message>
    <message>
        <source>Swap text and background</source>
        <translation>Text und Hintergrund tauschen</translation>
    </message>
    <message>
        <source>Sample text</source>
        <translation>Beispieltext</translation>
    </message>
    <message>
        <source>Normal text</source>
        <translation>Normaler Text</translation>
    </message>
    <message>
        <source>Large text</source>
        <translation>Großer Text</translation>
    </message>
    <message>
        <source>Non-text</source>
        <translation>Nicht-Text</translation>
    </message>
    <message>
        <source>APCA</source>
        <translation>APCA</translation>
    </message>
    <message>
        <source>%1 as text on %2</source>
        <translation>%1 als Text auf %2</translation>
    </message>
    <message>
        <source>Preview: %1 text on %2</source>
        <translation>Vorschau: Text in %1 auf %2</translation>
    </message>
    <message>
        <source>Now %1 is the text</source>
        <translation>Jetzt ist %1 der Text</translation>
    </message>
    <message>
        <source> to 1</source>
        <extracomment>A contrast ratio read aloud: &quot;4.5 to 1&quot;; keep the spaces</extracomment>
        <translation> zu 1</translation>
    </message>
    <message>
        <source>Contrast ratio %1</source>
        <translation>Kontrastverhältnis %1</translation>
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
        <translation>Farben exportieren</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Plain Text (*.txt)</source>
        <translation>Reiner Text (*.txt)</translation>
    </message>
    <message>
        <source>Export Failed</source>
        <translation>Export fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>FormatLine</name>
    <message>
        <source>Copy</source>
        <extracomment>The verb: what pressing the line does, copy its colour text</extracomment>
        <translation>Kopieren</translation>
    </message>
</context>
<context>
    <name>HotkeyManager</name>
    <message>
        <source>Pick a color</source>
        <translation>Eine Farbe aufnehmen</translation>
    </message>
    <message>
        <source>Show or hide Vantle</source>
        <translation>Vantle zeigen oder verbergen</translation>
    </message>
</context>
<context>
    <name>HotkeyRecorderView</name>
    <message>
        <source>Clear the %1 shortcut</source>
        <translation>Tastenkürzel „%1“ entfernen</translation>
    </message>
    <message>
        <source>Press shortcut…</source>
        <translation>Tastenkürzel drücken …</translation>
    </message>
    <message>
        <source>None - click to set</source>
        <translation>Keines – zum Festlegen klicken</translation>
    </message>
</context>
<context>
    <name>KeyCodes</name>
    <message>
        <source>Ctrl</source>
        <extracomment>The Control key in a keyboard shortcut, as the desktop names it (&quot;Strg&quot; in German)</extracomment>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Alt</source>
        <extracomment>The Alt key in a keyboard shortcut, as the desktop names it</extracomment>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <extracomment>The Shift key in a keyboard shortcut, as the desktop names it (&quot;Umschalt&quot; in German)</extracomment>
        <translation>Umschalt</translation>
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
        <translation>Farbe aufnehmen</translation>
    </message>
    <message>
        <source>Last: #FF6B35</source>
        <translation>Zuletzt: #FF6B35</translation>
    </message>
    <message>
        <source>Start Using vantle</source>
        <translation>vantle verwenden</translation>
    </message>
    <message>
        <source>You&apos;re all set.</source>
        <translation>Alles bereit.</translation>
    </message>
    <message>
        <source>Look for the eyedropper icon in your system tray.</source>
        <translation>Suchen Sie das Pipettensymbol im Systembereich der Kontrollleiste.</translation>
    </message>
    <message>
        <source>Pick any color from anywhere on your screen with one click.</source>
        <translation>Nehmen Sie jede Farbe von überall auf dem Bildschirm mit einem Klick auf.</translation>
    </message>
    <message>
        <source>The color value is copied to your clipboard instantly in your preferred format.</source>
        <translation>Der Farbwert wird sofort in Ihrem bevorzugten Format in die Zwischenablage kopiert.</translation>
    </message>
    <message>
        <source>Pin your favorite colors and build a palette you can export anytime.</source>
        <translation>Heften Sie Ihre Lieblingsfarben an und stellen Sie eine Palette zusammen, die Sie jederzeit exportieren können.</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Los geht’s</translation>
    </message>
    <message>
        <source>Welcome to vantle</source>
        <translation>Willkommen bei vantle</translation>
    </message>
</context>
<context>
    <name>OnboardingWindow</name>
    <message>
        <source>Welcome to vantle</source>
        <translation>Willkommen bei vantle</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
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
        <translation>Softwareaktualisierung</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>Alles ist aktuell!</translation>
    </message>
    <message>
        <source>%1 %2 is the latest version.</source>
        <translation>%1 %2 ist die neueste Version.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>A new version of %1 is available!</source>
        <translation>Eine neue Version von %1 ist verfügbar!</translation>
    </message>
    <message>
        <source>%1 %2 is now available — you have %3. Would you like to download it now?</source>
        <translation>%1 %2 ist jetzt verfügbar – Sie haben %3. Möchten Sie sie jetzt herunterladen?</translation>
    </message>
    <message>
        <source>Release Notes:</source>
        <translation>Versionshinweise:</translation>
    </message>
    <message>
        <source>Read the release notes</source>
        <translation>Versionshinweise lesen</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Diese Version überspringen</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Später erinnern</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>Downloading %1…</source>
        <translation>%1 wird heruntergeladen …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Update Failed</source>
        <translation>Aktualisierung fehlgeschlagen</translation>
    </message>
    <message>
        <source>%1 was downloaded in the background.</source>
        <translation>%1 wurde im Hintergrund heruntergeladen.</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 wurde heruntergeladen.</translation>
    </message>
    <message>
        <source>The file is saved as %1. Install it the way you installed this version.</source>
        <translation>Die Datei ist als %1 gespeichert. Installieren Sie sie so, wie Sie diese Version installiert haben.</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner anzeigen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Vantle Settings</source>
        <translation>Vantle-Einstellungen</translation>
    </message>
</context>
<context>
    <name>RenameColorSheet</name>
    <message>
        <source>Rename Color</source>
        <translation>Farbe umbenennen</translation>
    </message>
    <message>
        <source>Color name (optional)</source>
        <translation>Farbname (optional)</translation>
    </message>
    <message>
        <source>Color name</source>
        <translation>Farbname</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
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
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Pick any color from anywhere on your screen with one click.</source>
        <translation>Nehmen Sie jede Farbe von überall auf dem Bildschirm mit einem Klick auf.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Aktualisierungen suchen …</translation>
    </message>
    <message>
        <source>Automatically download updates</source>
        <translation>Aktualisierungen automatisch herunterladen</translation>
    </message>
    <message>
        <source>Vantle Website</source>
        <translation>Vantle-Website</translation>
    </message>
    <message>
        <source>%1 Website</source>
        <translation>Website von %1</translation>
    </message>
    <message>
        <source>Made by %1.</source>
        <translation>Von %1.</translation>
    </message>
    <message>
        <source>Default format</source>
        <translation>Standardformat</translation>
    </message>
    <message>
        <source>Color Format</source>
        <translation>Farbformat</translation>
    </message>
    <message>
        <source>Pick color</source>
        <translation>Farbe aufnehmen</translation>
    </message>
    <message>
        <source>Toggle popup</source>
        <translation>Fenster ein-/ausblenden</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>On GNOME these shortcuts live among the custom shortcuts in Settings › Keyboard.</source>
        <translation>Unter GNOME stehen diese Tastenkürzel bei den eigenen Tastenkürzeln in Einstellungen › Tastatur.</translation>
    </message>
    <message>
        <source>Show colored dot for last picked color</source>
        <translation>Farbigen Punkt für die zuletzt aufgenommene Farbe zeigen</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>Symbol in der Kontrollleiste</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>History limit</source>
        <translation>Verlaufsgrenze</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Verlauf leeren</translation>
    </message>
    <message>
        <source>Pinned colors will be preserved.</source>
        <translation>Angeheftete Farben bleiben erhalten.</translation>
    </message>
    <message>
        <source>Data</source>
        <extracomment>Heading of the settings about the stored history</extracomment>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Reduce History</source>
        <translation>Verlauf kürzen</translation>
    </message>
    <message>
        <source>This will remove the oldest 1 color.</source>
        <translation>Dies entfernt die älteste Farbe.</translation>
    </message>
    <message numerus="yes">
        <source>This will remove the oldest %n colors.</source>
        <translation>
            <numerusform>Dies entfernt die älteste Farbe.</numerusform>
            <numerusform>Dies entfernt die ältesten %n Farben.</numerusform>
        </translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation>Mehr erfahren</translation>
    </message>
    <message>
        <source>No other %1 applications are listed in this build.</source>
        <translation>In dieser Ausgabe sind keine weiteren Anwendungen von %1 aufgeführt.</translation>
    </message>
    <message>
        <source>All %1 applications</source>
        <translation>Alle Anwendungen von %1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>More %1</source>
        <extracomment>The tab of the maker&apos;s other applications; %1 is the maker&apos;s name</extracomment>
        <translation>Mehr von %1</translation>
    </message>
</context>
<context>
    <name>UpdaterController</name>
    <message>
        <source>This app</source>
        <translation>Diese Anwendung</translation>
    </message>
</context>
</TS>
