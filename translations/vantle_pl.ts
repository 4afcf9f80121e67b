<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<context>
    <name>AppDelegate</name>
    <message>
        <source>Pick Color</source>
        <translation>Pobierz kolor</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ustawienia…</translation>
    </message>
    <message>
        <source>Quit vantle</source>
        <translation>Zakończ vantle</translation>
    </message>
</context>
<context>
    <name>AppcastUpdater</name>
    <message>
        <source>This copy of %1 has no key to verify updates with, so version %2 was not downloaded. Please get it from the %1 website.</source>
        <translation>Ta kopia %1 nie ma klucza do sprawdzania aktualizacji, dlatego wersja %2 nie została pobrana. Pobierz ją ze strony %1.</translation>
    </message>
    <message>
        <source>The update could not be saved in %1.</source>
        <translation>Nie można zapisać aktualizacji w %1.</translation>
    </message>
    <message>
        <source>The update could not be saved in %1, so the partial file was deleted.</source>
        <translation>Nie można zapisać aktualizacji w %1, dlatego niepełny plik został usunięty.</translation>
    </message>
    <message>
        <source>The update could not be downloaded, so the partial file was deleted.</source>
        <translation>Nie można pobrać aktualizacji, dlatego niepełny plik został usunięty.</translation>
    </message>
    <message>
        <source>This copy of %1 has no usable key to verify updates with, so the downloaded file was deleted. Please get the new version from the %1 website.</source>
        <translation>Ta kopia %1 nie ma użytecznego klucza do sprawdzania aktualizacji, dlatego pobrany plik został usunięty. Pobierz nową wersję ze strony %1.</translation>
    </message>
    <message>
        <source>The downloaded file does not have the size the update feed announced, so it was deleted.</source>
        <translation>Pobrany plik nie ma rozmiaru zapowiedzianego w kanale aktualizacji, dlatego został usunięty.</translation>
    </message>
    <message>
        <source>The downloaded file does not carry a valid signature from the maker of %1, so it was deleted.</source>
        <translation>Pobrany plik nie ma prawidłowego podpisu twórcy %1, dlatego został usunięty.</translation>
    </message>
    <message>
        <source>The downloaded file could not be read back for checking, so it was deleted.</source>
        <translation>Nie można odczytać pobranego pliku do sprawdzenia, dlatego został usunięty.</translation>
    </message>
</context>
<context>
    <name>ColorDetailView</name>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Contrast Ratios</source>
        <translation>Współczynniki kontrastu</translation>
    </message>
    <message>
        <source>vs White</source>
        <translation>z białym</translation>
    </message>
    <message>
        <source>vs Black</source>
        <translation>z czarnym</translation>
    </message>
    <message>
        <source>Color details</source>
        <translation>Szczegóły koloru</translation>
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
        <translation>Hex (małe litery)</translation>
    </message>
    <message>
        <source>RGB (decimal)</source>
        <extracomment>The name of a colour format: red, green and blue as whole numbers 0 to 255, as in 255, 107, 54</extracomment>
        <translation>RGB (dziesiętnie)</translation>
    </message>
</context>
<context>
    <name>ColorListView</name>
    <message>
        <source>colors</source>
        <extracomment>Spoken after the number of colours in the history (&quot;3 colors&quot;)</extracomment>
        <translation>kolory</translation>
    </message>
    <message>
        <source>Pick Color</source>
        <translation>Pobierz kolor</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Export colors</source>
        <translation>Eksportuj kolory</translation>
    </message>
    <message>
        <source>Export Pinned as Text</source>
        <translation>Eksportuj przypięte jako tekst</translation>
    </message>
    <message>
        <source>Export Pinned as JSON</source>
        <translation>Eksportuj przypięte jako JSON</translation>
    </message>
    <message>
        <source>Export All as Text</source>
        <translation>Eksportuj wszystkie jako tekst</translation>
    </message>
    <message>
        <source>Export All as JSON</source>
        <translation>Eksportuj wszystkie jako JSON</translation>
    </message>
    <message>
        <source>Quit vantle</source>
        <translation>Zakończ vantle</translation>
    </message>
    <message>
        <source>No colors yet</source>
        <translation>Nie ma jeszcze kolorów</translation>
    </message>
    <message>
        <source>Click Pick Color to get started</source>
        <translation>Kliknij „Pobierz kolor”, aby zacząć</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Kolory</translation>
    </message>
    <message>
        <source>PINNED</source>
        <extracomment>Heading of the list of pinned colours, in capitals where the language has them</extracomment>
        <translation>PRZYPIĘTE</translation>
    </message>
    <message>
        <source>RECENT</source>
        <translation>OSTATNIE</translation>
    </message>
    <message>
        <source>Picking…</source>
        <translation>Pobieranie…</translation>
    </message>
</context>
<context>
    <name>ColorListViewModel</name>
    <message>
        <source>Copied %1</source>
        <extracomment>The confirmation after a copy; %1 is the colour text put on the clipboard</extracomment>
        <translation>Skopiowano %1</translation>
    </message>
    <message>
        <source>Not copied: the clipboard is not available</source>
        <translation>Nie skopiowano: schowek jest niedostępny</translation>
    </message>
    <message>
        <source>“%1” could not be written: %2</source>
        <translation>Nie można zapisać „%1”: %2</translation>
    </message>
</context>
<context>
    <name>ColorRowView</name>
    <message>
        <source>pinned</source>
        <extracomment>Spoken state of a colour kept in the palette</extracomment>
        <translation>przypięty</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Skopiuj</translation>
    </message>
    <message>
        <source>Unpin</source>
        <extracomment>The verbs of the menu: keep the colour in the palette, or take it out (Unpin)</extracomment>
        <translation>Odepnij</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Przypnij</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Zmień nazwę…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>nieznana opcja „%1”</translation>
    </message>
    <message>
        <source>cannot read the colour &quot;%1&quot;; accepted: %2</source>
        <translation>nie można odczytać koloru „%1”; dozwolone: %2</translation>
    </message>
    <message>
        <source>any text Vantle writes (#RRGGBB, rgb(), rgba(), hsl(), hsb(), R, G, B, Color(), UIColor()), #RGB, RRGGBB, or r,g,b[,a] with components such as 1.0,0.42,0.21</source>
        <translation>dowolny tekst zapisywany przez Vantle (#RRGGBB, rgb(), rgba(), hsl(), hsb(), R, G, B, Color(), UIColor()), #RGB, RRGGBB lub r,g,b[,a] ze składowymi takimi jak 1.0,0.42,0.21</translation>
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
        <translation>Użycie: vantle [POLECENIE] [OPCJE]

Bez polecenia Vantle uruchamia się w zasobniku systemowym (a jeśli już działa,
pokazuje lub ukrywa swoje okno).

Polecenia:
  format [--format NAME | --all] [--contrast] COLOR...
      Wypisuje kolory jako tekst. COLOR to dowolny tekst zapisywany przez
      Vantle (rgb(...), hsl(...)...), #RGB, #RRGGBB, RRGGBB lub składowe sRGB
      r,g,b albo r,g,b,a od 0 do 1. Bez --format używany jest preferowany
      format. --all wypisuje wszystkie dziewięć formatów jako LABEL&lt;TAB&gt;TEXT;
      --contrast dodaje kontrast WCAG względem bieli i czerni.
        vantle format &apos;#FF6B36&apos; --format hsl
        vantle format --all --contrast 1.0,0.42,0.21
  contrast [--json] FOREGROUND BACKGROUND
      Wypisuje współczynnik kontrastu WCAG 2 koloru tekstu na jego tle, oceny
      dla zwykłego tekstu, dużego tekstu i elementów nietekstowych oraz
      kontrast jasności APCA Lc; --json wypisuje jeden obiekt. Kolor to
      dowolny tekst zapisywany przez Vantle, #RGB lub formy czytane przez
      `format`.
        vantle contrast &apos;#888&apos; &apos;#FFF&apos;
  export [--pinned] [--json] [-o FILE]
      Wypisuje zapisaną historię (lub tylko przypięte kolory) jako tekst w
      preferowanym formacie albo jako JSON; z -o zapisuje ją atomowo do FILE.
        vantle export --pinned --json -o palette.json
  pick [--print [--format NAME]]
      Prosi działający Vantle o pobranie koloru (przypisz to do klawisza w
      ustawieniach klawiatury środowiska). Z --print pobiera w tym procesie i
      wypisuje kolor; kod wyjścia 1 po anulowaniu.
        vantle pick
        vantle pick --print --format hexLower
  toggle
      Prosi działający Vantle o pokazanie lub ukrycie okna.
        vantle toggle

Opcje:
  -h, --help     Wyświetla tę pomoc.
  -v, --version  Wyświetla wersję.

Ustawienia: %1
</translation>
    </message>
    <message>
        <source>Usage: vantle contrast [--json] FOREGROUND BACKGROUND
The WCAG 2 contrast ratio of FOREGROUND (text, an icon, a border) on
BACKGROUND, its grades for normal text (AA 4.5, AAA 7), large text (AA 3,
AAA 4.5) and non-text parts (3), and the APCA lightness contrast Lc
(negative for light on dark). A translucent foreground is drawn on the
background first; the background must be opaque.</source>
        <translation>Użycie: vantle contrast [--json] FOREGROUND BACKGROUND
Współczynnik kontrastu WCAG 2 koloru FOREGROUND (tekst, ikona, obramowanie) na
BACKGROUND, jego oceny dla zwykłego tekstu (AA 4.5, AAA 7), dużego tekstu
(AA 3, AAA 4.5) i elementów nietekstowych (3) oraz kontrast jasności APCA Lc
(ujemny dla jasnego na ciemnym). Półprzezroczysty pierwszy plan jest najpierw
rysowany na tle; tło musi być nieprzezroczyste.</translation>
    </message>
    <message>
        <source>Colours: %1</source>
        <translation>Kolory: %1</translation>
    </message>
    <message numerus="yes">
        <source>needs a foreground and a background colour, %n given</source>
        <translation>
            <numerusform>wymaga koloru pierwszego planu i tła, podano %n</numerusform>
            <numerusform>wymaga koloru pierwszego planu i tła, podano %n</numerusform>
            <numerusform>wymaga koloru pierwszego planu i tła, podano %n</numerusform>
        </translation>
    </message>
    <message>
        <source>the background must be opaque (its alpha is %1)</source>
        <translation>tło musi być nieprzezroczyste (jego alfa to %1)</translation>
    </message>
    <message>
        <source>-o needs a file name</source>
        <translation>-o wymaga nazwy pliku</translation>
    </message>
    <message>
        <source>Usage: vantle export [--pinned] [--json] [-o FILE]
Prints the stored colour history (with --pinned only the pinned colours), newest
first, as text in the preferred format or as JSON; -o writes it to FILE.</source>
        <translation>Użycie: vantle export [--pinned] [--json] [-o FILE]
Wypisuje zapisaną historię kolorów (z --pinned tylko przypięte kolory), od
najnowszych, jako tekst w preferowanym formacie lub jako JSON; -o zapisuje ją
do FILE.</translation>
    </message>
    <message>
        <source>unknown argument &quot;%1&quot;</source>
        <translation>nieznany argument „%1”</translation>
    </message>
    <message>
        <source>the stored colour history cannot be read (%1)</source>
        <translation>nie można odczytać zapisanej historii kolorów (%1)</translation>
    </message>
    <message>
        <source>cannot write &quot;%1&quot;: %2</source>
        <translation>nie można zapisać „%1”: %2</translation>
    </message>
    <message>
        <source>--format needs a format name; accepted: %1</source>
        <translation>--format wymaga nazwy formatu; dozwolone: %1</translation>
    </message>
    <message>
        <source>unknown format &quot;%1&quot;; accepted: %2</source>
        <translation>nieznany format „%1”; dozwolone: %2</translation>
    </message>
    <message>
        <source>Usage: vantle format [--format NAME | --all] [--contrast] COLOR...</source>
        <translation>Użycie: vantle format [--format NAME | --all] [--contrast] COLOR...</translation>
    </message>
    <message>
        <source>Formats: %1</source>
        <translation>Formaty: %1</translation>
    </message>
    <message>
        <source>--format and --all cannot be used together</source>
        <translation>nie można używać razem --format i --all</translation>
    </message>
    <message>
        <source>no colour given; accepted: %1</source>
        <translation>nie podano koloru; dozwolone: %1</translation>
    </message>
    <message>
        <source>Vantle is not running.</source>
        <translation>Vantle nie działa.</translation>
    </message>
    <message>
        <source>the running Vantle did not answer.</source>
        <translation>działający Vantle nie odpowiedział.</translation>
    </message>
    <message>
        <source>the running Vantle did not answer (%1).</source>
        <translation>działający Vantle nie odpowiedział (%1).</translation>
    </message>
    <message>
        <source>the command &quot;%1&quot; is not available in this build</source>
        <translation>polecenie „%1” nie jest dostępne w tej kompilacji</translation>
    </message>
    <message>
        <source>the desktop part of Vantle cannot be loaded (%1). Reinstalling Vantle puts it back.</source>
        <translation>nie można wczytać części graficznej Vantle (%1). Ponowna instalacja Vantle ją przywróci.</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;</source>
        <translation>nieznane polecenie „%1”</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>nieoczekiwany argument „%1”</translation>
    </message>
    <message>
        <source>Start it with `vantle` (or from your applications menu) first.</source>
        <translation>Najpierw uruchom go poleceniem `vantle` (lub z menu programów).</translation>
    </message>
</context>
<context>
    <name>Contrast</name>
    <message>
        <source>body text</source>
        <translation>tekst główny</translation>
    </message>
    <message>
        <source>large or bold text</source>
        <translation>duży lub pogrubiony tekst</translation>
    </message>
    <message>
        <source>headlines</source>
        <translation>nagłówki</translation>
    </message>
    <message>
        <source>non-text only</source>
        <translation>tylko elementy nietekstowe</translation>
    </message>
    <message>
        <source>dividers and disabled parts only</source>
        <translation>tylko separatory i nieaktywne elementy</translation>
    </message>
    <message>
        <source>invisible</source>
        <translation>niewidoczny</translation>
    </message>
</context>
<context>
    <name>ContrastBadge</name>
    <message>
        <source> to </source>
        <extracomment>The colon of a contrast ratio read aloud: &quot;4.5 to 1&quot;; keep the spaces</extracomment>
        <translation> do </translation>
    </message>
</context>
<context>
    <name>ContrastComparisonView</name>
    <message>
        <source>Text and Background</source>
        <translation>Tekst i tło</translation>
    </message>
    <message>
        <source>Pick another color to see how the two read as text and background.</source>
        <translation>Pobierz kolejny kolor, aby zobaczyć, jak oba czytają się jako tekst i tło.</translation>
    </message>
    <message>
        <source>Compared color</source>
        <translation>Porównywany kolor</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Zamień</translation>
    </message>
    <message>
        <source>Swap text and background</source>
        <translation>Zamień tekst i tło</translation>
    </message>
    <message>
        <source>Sample text</source>
        <translation>Przykładowy tekst</translation>
    </message>
    <message>
        <source>Normal text</source>
        <translation>Zwykły tekst</translation>
    </message>
    <message>
        <source>Large text</source>
        <translation>Duży tekst</translation>
    </message>
    <message>
        <source>Non-text</source>
        <translation>Nietekstowe</translation>
    </message>
    <message>
        <source>APCA</source>
        <translation>APCA</translation>
    </message>
    <message>
        <source>%1 as text on %2</source>
        <translation>%1 jako tekst na %2</translation>
    </message>
    <message>
        <source>Preview: %1 text on %2</source>
        <translation>Podgląd: tekst %1 na %2</translation>
    </message>
    <message>
        <source>Now %1 is the text</source>
        <translation>Teraz %1 jest tekstem</translation>
    </message>
    <message>
        <source> to 1</source>
        <extracomment>A contrast ratio read aloud: &quot;4.5 to 1&quot;; keep the spaces</extracomment>
        <translation> do 1</translation>
    </message>
    <message>
        <source>Contrast ratio %1</source>
        <translation>Współczynnik kontrastu %1</translation>
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
        <translation>Eksportuj kolory</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Plain Text (*.txt)</source>
        <translation>Zwykły tekst (*.txt)</translation>
    </message>
    <message>
        <source>Export Failed</source>
        <translation>Eksport się nie powiódł</translation>
    </message>
</context>
<context>
    <name>FormatLine</name>
    <message>
        <source>Copy</source>
        <extracomment>The verb: what pressing the line does, copy its colour text</extracomment>
        <translation>Skopiuj</translation>
    </message>
</context>
<context>
    <name>HotkeyManager</name>
    <message>
        <source>Pick a color</source>
        <translation>Pobierz kolor</translation>
    </message>
    <message>
        <source>Show or hide Vantle</source>
        <translation>Pokaż lub ukryj Vantle</translation>
    </message>
</context>
<context>
    <name>HotkeyRecorderView</name>
    <message>
        <source>Clear the %1 shortcut</source>
        <translation>Wyczyść skrót „%1”</translation>
    </message>
    <message>
        <source>Press shortcut…</source>
        <translation>Naciśnij skrót…</translation>
    </message>
    <message>
        <source>None - click to set</source>
        <translation>Brak - kliknij, aby ustawić</translation>
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
        <translation>Shift</translation>
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
        <translation>Pobierz kolor</translation>
    </message>
    <message>
        <source>Last: #FF6B35</source>
        <translation>Ostatni: #FF6B35</translation>
    </message>
    <message>
        <source>Start Using vantle</source>
        <translation>Zacznij używać vantle</translation>
    </message>
    <message>
        <source>You&apos;re all set.</source>
        <translation>Wszystko gotowe.</translation>
    </message>
    <message>
        <source>Look for the eyedropper icon in your system tray.</source>
        <translation>Szukaj ikony pipety w zasobniku systemowym.</translation>
    </message>
    <message>
        <source>Pick any color from anywhere on your screen with one click.</source>
        <translation>Pobieraj dowolny kolor z dowolnego miejsca ekranu jednym kliknięciem.</translation>
    </message>
    <message>
        <source>The color value is copied to your clipboard instantly in your preferred format.</source>
        <translation>Wartość koloru od razu trafia do schowka w preferowanym formacie.</translation>
    </message>
    <message>
        <source>Pin your favorite colors and build a palette you can export anytime.</source>
        <translation>Przypinaj ulubione kolory i twórz paletę, którą wyeksportujesz w każdej chwili.</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Zaczynamy</translation>
    </message>
    <message>
        <source>Welcome to vantle</source>
        <translation>Witaj w vantle</translation>
    </message>
</context>
<context>
    <name>OnboardingWindow</name>
    <message>
        <source>Welcome to vantle</source>
        <translation>Witaj w vantle</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
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
        <translation>Aktualizacja oprogramowania</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>Wszystko jest aktualne!</translation>
    </message>
    <message>
        <source>%1 %2 is the latest version.</source>
        <translation>%1 %2 to najnowsza wersja.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>A new version of %1 is available!</source>
        <translation>Dostępna jest nowa wersja %1!</translation>
    </message>
    <message>
        <source>%1 %2 is now available — you have %3. Would you like to download it now?</source>
        <translation>Dostępna jest wersja %1 %2 — masz %3. Pobrać ją teraz?</translation>
    </message>
    <message>
        <source>Release Notes:</source>
        <translation>Informacje o wydaniu:</translation>
    </message>
    <message>
        <source>Read the release notes</source>
        <translation>Przeczytaj informacje o wydaniu</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Pomiń tę wersję</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Przypomnij później</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Pobierz</translation>
    </message>
    <message>
        <source>Downloading %1…</source>
        <translation>Pobieranie %1…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Update Failed</source>
        <translation>Aktualizacja się nie powiodła</translation>
    </message>
    <message>
        <source>%1 was downloaded in the background.</source>
        <translation>Pobrano %1 w tle.</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>Pobrano %1.</translation>
    </message>
    <message>
        <source>The file is saved as %1. Install it the way you installed this version.</source>
        <translation>Plik zapisano jako %1. Zainstaluj go tak, jak tę wersję.</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Pokaż w katalogu</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Vantle Settings</source>
        <translation>Ustawienia Vantle</translation>
    </message>
</context>
<context>
    <name>RenameColorSheet</name>
    <message>
        <source>Rename Color</source>
        <translation>Zmień nazwę koloru</translation>
    </message>
    <message>
        <source>Color name (optional)</source>
        <translation>Nazwa koloru (opcjonalnie)</translation>
    </message>
    <message>
        <source>Color name</source>
        <translation>Nazwa koloru</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
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
        <translation>Wersja %1</translation>
    </message>
    <message>
        <source>Pick any color from anywhere on your screen with one click.</source>
        <translation>Pobieraj dowolny kolor z dowolnego miejsca ekranu jednym kliknięciem.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Sprawdź aktualizacje…</translation>
    </message>
    <message>
        <source>Automatically download updates</source>
        <translation>Automatycznie pobieraj aktualizacje</translation>
    </message>
    <message>
        <source>Vantle Website</source>
        <translation>Strona Vantle</translation>
    </message>
    <message>
        <source>%1 Website</source>
        <translation>Strona %1</translation>
    </message>
    <message>
        <source>Made by %1.</source>
        <translation>Autor: %1.</translation>
    </message>
    <message>
        <source>Default format</source>
        <translation>Domyślny format</translation>
    </message>
    <message>
        <source>Color Format</source>
        <translation>Format koloru</translation>
    </message>
    <message>
        <source>Pick color</source>
        <translation>Pobierz kolor</translation>
    </message>
    <message>
        <source>Toggle popup</source>
        <translation>Pokaż/ukryj okno</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Skróty klawiszowe</translation>
    </message>
    <message>
        <source>On GNOME these shortcuts live among the custom shortcuts in Settings › Keyboard.</source>
        <translation>W GNOME te skróty znajdują się wśród własnych skrótów w Ustawienia › Klawiatura.</translation>
    </message>
    <message>
        <source>Show colored dot for last picked color</source>
        <translation>Pokazuj kropkę ostatnio pobranego koloru</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>Ikona w zasobniku</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Uruchamiaj po zalogowaniu</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>History limit</source>
        <translation>Limit historii</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Wyczyść historię</translation>
    </message>
    <message>
        <source>Pinned colors will be preserved.</source>
        <translation>Przypięte kolory zostaną zachowane.</translation>
    </message>
    <message>
        <source>Data</source>
        <extracomment>Heading of the settings about the stored history</extracomment>
        <translation>Dane</translation>
    </message>
    <message>
        <source>Reduce History</source>
        <translation>Skróć historię</translation>
    </message>
    <message>
        <source>This will remove the oldest 1 color.</source>
        <translation>Zostanie usunięty najstarszy kolor.</translation>
    </message>
    <message numerus="yes">
        <source>This will remove the oldest %n colors.</source>
        <translation>
            <numerusform>Zostanie usunięty %n najstarszy kolor.</numerusform>
            <numerusform>Zostaną usunięte %n najstarsze kolory.</numerusform>
            <numerusform>Zostanie usuniętych %n najstarszych kolorów.</numerusform>
        </translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Kontynuuj</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation>Więcej informacji</translation>
    </message>
    <message>
        <source>No other %1 applications are listed in this build.</source>
        <translation>W tej kompilacji nie wymieniono innych programów %1.</translation>
    </message>
    <message>
        <source>All %1 applications</source>
        <translation>Wszystkie programy %1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message>
        <source>More %1</source>
        <extracomment>The tab of the maker&apos;s other applications; %1 is the maker&apos;s name</extracomment>
        <translation>Więcej od %1</translation>
    </message>
</context>
<context>
    <name>UpdaterController</name>
    <message>
        <source>This app</source>
        <translation>Ten program</translation>
    </message>
</context>
</TS>
