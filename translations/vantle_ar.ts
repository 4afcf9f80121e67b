<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>AppDelegate</name>
    <message>
        <source>Pick Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit vantle</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppcastUpdater</name>
    <message>
        <source>This copy of %1 has no key to verify updates with, so version %2 was not downloaded. Please get it from the %1 website.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update could not be saved in %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update could not be saved in %1, so the partial file was deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update could not be downloaded, so the partial file was deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This copy of %1 has no usable key to verify updates with, so the downloaded file was deleted. Please get the new version from the %1 website.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The downloaded file does not have the size the update feed announced, so it was deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The downloaded file does not carry a valid signature from the maker of %1, so it was deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The downloaded file could not be read back for checking, so it was deleted.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColorDetailView</name>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contrast Ratios</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>vs White</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>vs Black</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color details</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColorFormat</name>
    <message>
        <source>Hex</source>
        <extracomment>The name of a colour format: hexadecimal digits, as in #FF6B36</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hex (lowercase)</source>
        <extracomment>The name of a colour format: hexadecimal digits in lower case, as in #ff6b36</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RGB (decimal)</source>
        <extracomment>The name of a colour format: red, green and blue as whole numbers 0 to 255, as in 255, 107, 54</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColorListView</name>
    <message>
        <source>colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Pinned as Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Pinned as JSON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export All as Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export All as JSON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit vantle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No colors yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click Pick Color to get started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PINNED</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RECENT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picking…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColorListViewModel</name>
    <message>
        <source>Copied %1</source>
        <extracomment>The confirmation after a copy; %1 is the colour text put on the clipboard</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not copied: the clipboard is not available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” could not be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColorRowView</name>
    <message>
        <source>pinned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot read the colour &quot;%1&quot;; accepted: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>any text Vantle writes (#RRGGBB, rgb(), rgba(), hsl(), hsb(), R, G, B, Color(), UIColor()), #RGB, RRGGBB, or r,g,b[,a] with components such as 1.0,0.42,0.21</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usage: vantle contrast [--json] FOREGROUND BACKGROUND
The WCAG 2 contrast ratio of FOREGROUND (text, an icon, a border) on
BACKGROUND, its grades for normal text (AA 4.5, AAA 7), large text (AA 3,
AAA 4.5) and non-text parts (3), and the APCA lightness contrast Lc
(negative for light on dark). A translucent foreground is drawn on the
background first; the background must be opaque.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>needs a foreground and a background colour, %n given</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>the background must be opaque (its alpha is %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-o needs a file name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usage: vantle export [--pinned] [--json] [-o FILE]
Prints the stored colour history (with --pinned only the pinned colours), newest
first, as text in the preferred format or as JSON; -o writes it to FILE.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown argument &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the stored colour history cannot be read (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot write &quot;%1&quot;: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--format needs a format name; accepted: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown format &quot;%1&quot;; accepted: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usage: vantle format [--format NAME | --all] [--contrast] COLOR...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formats: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--format and --all cannot be used together</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no colour given; accepted: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantle is not running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the running Vantle did not answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the running Vantle did not answer (%1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the command &quot;%1&quot; is not available in this build</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the desktop part of Vantle cannot be loaded (%1). Reinstalling Vantle puts it back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start it with `vantle` (or from your applications menu) first.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Contrast</name>
    <message>
        <source>body text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>large or bold text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>headlines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>non-text only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dividers and disabled parts only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>invisible</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ContrastBadge</name>
    <message>
        <source> to </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ContrastComparisonView</name>
    <message>
        <source>Text and Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick another color to see how the two read as text and background.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compared color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Swap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Swap text and background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sample text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Large text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Non-text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>APCA</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 as text on %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview: %1 text on %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Now %1 is the text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> to 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contrast ratio %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lc %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>APCA: Lc %1, %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileExportDialogs</name>
    <message>
        <source>Export Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plain Text (*.txt)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Failed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FormatLine</name>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HotkeyManager</name>
    <message>
        <source>Pick a color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show or hide Vantle</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HotkeyRecorderView</name>
    <message>
        <source>Clear the %1 shortcut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press shortcut…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None - click to set</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyCodes</name>
    <message>
        <source>Ctrl</source>
        <extracomment>The Control key in a keyboard shortcut, as the desktop names it (&quot;Strg&quot; in German)</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt</source>
        <extracomment>The Alt key in a keyboard shortcut, as the desktop names it</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift</source>
        <extracomment>The Shift key in a keyboard shortcut, as the desktop names it (&quot;Umschalt&quot; in German)</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Super</source>
        <extracomment>The Super (logo) key in a keyboard shortcut, as the desktop names it</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OnboardingView</name>
    <message>
        <source>Pick Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last: #FF6B35</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Using vantle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You&apos;re all set.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look for the eyedropper icon in your system tray.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick any color from anywhere on your screen with one click.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The color value is copied to your clipboard instantly in your preferred format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pin your favorite colors and build a palette you can export anytime.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Welcome to vantle</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OnboardingWindow</name>
    <message>
        <source>Welcome to vantle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <comment>Translate this string to the string &apos;LTR&apos; in left-to-right languages or to &apos;RTL&apos; in right-to-left languages (such as Hebrew and Arabic) to get proper widget layout.</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Software Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 is the latest version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A new version of %1 is available!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 is now available — you have %3. Would you like to download it now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Release Notes:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the release notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was downloaded in the background.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is saved as %1. Install it the way you installed this version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantle Settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RenameColorSheet</name>
    <message>
        <source>Rename Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color name (optional)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>vantle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick any color from anywhere on your screen with one click.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatically download updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantle Website</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Website</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Made by %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toggle popup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On GNOME these shortcuts live among the custom shortcuts in Settings › Keyboard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show colored dot for last picked color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pinned colors will be preserved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reduce History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This will remove the oldest 1 color.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>This will remove the oldest %n colors.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Continue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No other %1 applications are listed in this build.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All %1 applications</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More %1</source>
        <extracomment>The tab of the maker&apos;s other applications; %1 is the maker&apos;s name</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpdaterController</name>
    <message>
        <source>This app</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
