<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>AppDelegate</name>
    <message>
        <source>Pick Color</source>
        <translation>Prélever une couleur</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Paramètres…</translation>
    </message>
    <message>
        <source>Quit vantle</source>
        <translation>Quitter vantle</translation>
    </message>
</context>
<context>
    <name>AppcastUpdater</name>
    <message>
        <source>This copy of %1 has no key to verify updates with, so version %2 was not downloaded. Please get it from the %1 website.</source>
        <translation>Cette copie de %1 n’a aucune clé pour vérifier les mises à jour : la version %2 n’a donc pas été téléchargée. Veuillez l’obtenir sur le site web de %1.</translation>
    </message>
    <message>
        <source>The update could not be saved in %1.</source>
        <translation>La mise à jour n’a pas pu être enregistrée dans %1.</translation>
    </message>
    <message>
        <source>The update could not be saved in %1, so the partial file was deleted.</source>
        <translation>La mise à jour n’a pas pu être enregistrée dans %1 : le fichier partiel a donc été supprimé.</translation>
    </message>
    <message>
        <source>The update could not be downloaded, so the partial file was deleted.</source>
        <translation>La mise à jour n’a pas pu être téléchargée : le fichier partiel a donc été supprimé.</translation>
    </message>
    <message>
        <source>This copy of %1 has no usable key to verify updates with, so the downloaded file was deleted. Please get the new version from the %1 website.</source>
        <translation>Cette copie de %1 n’a aucune clé utilisable pour vérifier les mises à jour : le fichier téléchargé a donc été supprimé. Veuillez obtenir la nouvelle version sur le site web de %1.</translation>
    </message>
    <message>
        <source>The downloaded file does not have the size the update feed announced, so it was deleted.</source>
        <translation>Le fichier téléchargé n’a pas la taille annoncée par le flux de mises à jour : il a donc été supprimé.</translation>
    </message>
    <message>
        <source>The downloaded file does not carry a valid signature from the maker of %1, so it was deleted.</source>
        <translation>Le fichier téléchargé ne porte pas de signature valide de l’éditeur de %1 : il a donc été supprimé.</translation>
    </message>
    <message>
        <source>The downloaded file could not be read back for checking, so it was deleted.</source>
        <translation>Le fichier téléchargé n’a pas pu être relu pour vérification : il a donc été supprimé.</translation>
    </message>
</context>
<context>
    <name>ColorDetailView</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Contrast Ratios</source>
        <translation>Rapports de contraste</translation>
    </message>
    <message>
        <source>vs White</source>
        <translation>sur blanc</translation>
    </message>
    <message>
        <source>vs Black</source>
        <translation>sur noir</translation>
    </message>
    <message>
        <source>Color details</source>
        <translation>Détails de la couleur</translation>
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
        <translation>Hex (minuscules)</translation>
    </message>
    <message>
        <source>RGB (decimal)</source>
        <extracomment>The name of a colour format: red, green and blue as whole numbers 0 to 255, as in 255, 107, 54</extracomment>
        <translation>RGB (décimal)</translation>
    </message>
</context>
<context>
    <name>ColorListView</name>
    <message>
        <source>colors</source>
        <extracomment>Spoken after the number of colours in the history (&quot;3 colors&quot;)</extracomment>
        <translation>couleurs</translation>
    </message>
    <message>
        <source>Pick Color</source>
        <translation>Prélever une couleur</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Export colors</source>
        <translation>Exporter les couleurs</translation>
    </message>
    <message>
        <source>Export Pinned as Text</source>
        <translation>Exporter les épinglées en texte</translation>
    </message>
    <message>
        <source>Export Pinned as JSON</source>
        <translation>Exporter les épinglées en JSON</translation>
    </message>
    <message>
        <source>Export All as Text</source>
        <translation>Tout exporter en texte</translation>
    </message>
    <message>
        <source>Export All as JSON</source>
        <translation>Tout exporter en JSON</translation>
    </message>
    <message>
        <source>Quit vantle</source>
        <translation>Quitter vantle</translation>
    </message>
    <message>
        <source>No colors yet</source>
        <translation>Aucune couleur pour l’instant</translation>
    </message>
    <message>
        <source>Click Pick Color to get started</source>
        <translation>Cliquez sur « Prélever une couleur » pour commencer</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>PINNED</source>
        <extracomment>Heading of the list of pinned colours, in capitals where the language has them</extracomment>
        <translation>ÉPINGLÉES</translation>
    </message>
    <message>
        <source>RECENT</source>
        <translation>RÉCENTES</translation>
    </message>
    <message>
        <source>Picking…</source>
        <translation>Prélèvement…</translation>
    </message>
</context>
<context>
    <name>ColorListViewModel</name>
    <message>
        <source>Copied %1</source>
        <extracomment>The confirmation after a copy; %1 is the colour text put on the clipboard</extracomment>
        <translation>%1 copié</translation>
    </message>
    <message>
        <source>Not copied: the clipboard is not available</source>
        <translation>Non copié : le presse-papiers n’est pas disponible</translation>
    </message>
    <message>
        <source>“%1” could not be written: %2</source>
        <translation>« %1 » n’a pas pu être écrit : %2</translation>
    </message>
</context>
<context>
    <name>ColorRowView</name>
    <message>
        <source>pinned</source>
        <extracomment>Spoken state of a colour kept in the palette</extracomment>
        <translation>épinglée</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Unpin</source>
        <extracomment>The verbs of the menu: keep the colour in the palette, or take it out (Unpin)</extracomment>
        <translation>Détacher</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Épingler</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Renommer…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>option inconnue « %1 »</translation>
    </message>
    <message>
        <source>cannot read the colour &quot;%1&quot;; accepted: %2</source>
        <translation>impossible de lire la couleur « %1 » ; acceptés : %2</translation>
    </message>
    <message>
        <source>any text Vantle writes (#RRGGBB, rgb(), rgba(), hsl(), hsb(), R, G, B, Color(), UIColor()), #RGB, RRGGBB, or r,g,b[,a] with components such as 1.0,0.42,0.21</source>
        <translation>tout texte écrit par Vantle (#RRGGBB, rgb(), rgba(), hsl(), hsb(), R, G, B, Color(), UIColor()), #RGB, RRGGBB, ou r,g,b[,a] avec des composantes comme 1.0,0.42,0.21</translation>
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
        <translation>Utilisation : vantle [COMMANDE] [OPTIONS]

Sans commande, Vantle démarre dans la zone de notification (ou, s’il est déjà
lancé, affiche ou masque sa fenêtre).

Commandes :
  format [--format NAME | --all] [--contrast] COLOR...
      Afficher des couleurs en texte. COLOR est tout texte écrit par Vantle
      (rgb(...), hsl(...)...), #RGB, #RRGGBB, RRGGBB, ou des composantes sRGB
      r,g,b ou r,g,b,a entre 0 et 1. Sans --format, le format préféré est
      utilisé. --all affiche les neuf formats en LABEL&lt;TAB&gt;TEXT ; --contrast
      ajoute le contraste WCAG par rapport au blanc et au noir.
        vantle format &apos;#FF6B36&apos; --format hsl
        vantle format --all --contrast 1.0,0.42,0.21
  contrast [--json] FOREGROUND BACKGROUND
      Afficher le rapport de contraste WCAG 2 d’une couleur de texte sur son
      fond, ses niveaux pour le texte normal, le grand texte et les éléments
      non textuels, et le contraste de luminosité APCA Lc ; --json affiche un
      objet. Une couleur est tout texte écrit par Vantle, #RGB, ou les formes
      que lit `format`.
        vantle contrast &apos;#888&apos; &apos;#FFF&apos;
  export [--pinned] [--json] [-o FILE]
      Afficher l’historique enregistré (ou seulement les couleurs épinglées)
      en texte dans le format préféré, ou en JSON ; avec -o, l’écrire de façon
      atomique dans FILE.
        vantle export --pinned --json -o palette.json
  pick [--print [--format NAME]]
      Demander au Vantle en cours de lancer un prélèvement (associez cette
      commande à une touche dans les paramètres clavier de votre bureau). Avec
      --print, prélever dans ce processus et afficher la couleur ; code de
      sortie 1 en cas d’annulation.
        vantle pick
        vantle pick --print --format hexLower
  toggle
      Demander au Vantle en cours d’afficher ou de masquer sa fenêtre.
        vantle toggle

Options :
  -h, --help     Afficher cette aide.
  -v, --version  Afficher la version.

Paramètres : %1
</translation>
    </message>
    <message>
        <source>Usage: vantle contrast [--json] FOREGROUND BACKGROUND
The WCAG 2 contrast ratio of FOREGROUND (text, an icon, a border) on
BACKGROUND, its grades for normal text (AA 4.5, AAA 7), large text (AA 3,
AAA 4.5) and non-text parts (3), and the APCA lightness contrast Lc
(negative for light on dark). A translucent foreground is drawn on the
background first; the background must be opaque.</source>
        <translation>Utilisation : vantle contrast [--json] FOREGROUND BACKGROUND
Le rapport de contraste WCAG 2 de FOREGROUND (texte, icône, bordure) sur
BACKGROUND, ses niveaux pour le texte normal (AA 4.5, AAA 7), le grand texte
(AA 3, AAA 4.5) et les éléments non textuels (3), et le contraste de
luminosité APCA Lc (négatif pour du clair sur du foncé). Un premier plan
translucide est d’abord dessiné sur le fond ; le fond doit être opaque.</translation>
    </message>
    <message>
        <source>Colours: %1</source>
        <translation>Couleurs : %1</translation>
    </message>
    <message numerus="yes">
        <source>needs a foreground and a background colour, %n given</source>
        <translation>
            <numerusform>il faut une couleur de premier plan et une de fond, %n donnée</numerusform>
            <numerusform>il faut une couleur de premier plan et une de fond, %n données</numerusform>
        </translation>
    </message>
    <message>
        <source>the background must be opaque (its alpha is %1)</source>
        <translation>le fond doit être opaque (son alpha vaut %1)</translation>
    </message>
    <message>
        <source>-o needs a file name</source>
        <translation>-o demande un nom de fichier</translation>
    </message>
    <message>
        <source>Usage: vantle export [--pinned] [--json] [-o FILE]
Prints the stored colour history (with --pinned only the pinned colours), newest
first, as text in the preferred format or as JSON; -o writes it to FILE.</source>
        <translation>Utilisation : vantle export [--pinned] [--json] [-o FILE]
Affiche l’historique des couleurs enregistré (avec --pinned, seulement les
couleurs épinglées), du plus récent au plus ancien, en texte dans le format
préféré ou en JSON ; -o l’écrit dans FILE.</translation>
    </message>
    <message>
        <source>unknown argument &quot;%1&quot;</source>
        <translation>argument inconnu « %1 »</translation>
    </message>
    <message>
        <source>the stored colour history cannot be read (%1)</source>
        <translation>l’historique des couleurs enregistré est illisible (%1)</translation>
    </message>
    <message>
        <source>cannot write &quot;%1&quot;: %2</source>
        <translation>impossible d’écrire « %1 » : %2</translation>
    </message>
    <message>
        <source>--format needs a format name; accepted: %1</source>
        <translation>--format demande un nom de format ; acceptés : %1</translation>
    </message>
    <message>
        <source>unknown format &quot;%1&quot;; accepted: %2</source>
        <translation>format inconnu « %1 » ; acceptés : %2</translation>
    </message>
    <message>
        <source>Usage: vantle format [--format NAME | --all] [--contrast] COLOR...</source>
        <translation>Utilisation : vantle format [--format NAME | --all] [--contrast] COLOR...</translation>
    </message>
    <message>
        <source>Formats: %1</source>
        <translation>Formats : %1</translation>
    </message>
    <message>
        <source>--format and --all cannot be used together</source>
        <translation>--format et --all ne peuvent pas être utilisés ensemble</translation>
    </message>
    <message>
        <source>no colour given; accepted: %1</source>
        <translation>aucune couleur donnée ; acceptés : %1</translation>
    </message>
    <message>
        <source>Vantle is not running.</source>
        <translation>Vantle n’est pas lancé.</translation>
    </message>
    <message>
        <source>the running Vantle did not answer.</source>
        <translation>le Vantle en cours n’a pas répondu.</translation>
    </message>
    <message>
        <source>the running Vantle did not answer (%1).</source>
        <translation>le Vantle en cours n’a pas répondu (%1).</translation>
    </message>
    <message>
        <source>the command &quot;%1&quot; is not available in this build</source>
        <translation>la commande « %1 » n’est pas disponible dans cette version</translation>
    </message>
    <message>
        <source>the desktop part of Vantle cannot be loaded (%1). Reinstalling Vantle puts it back.</source>
        <translation>la partie graphique de Vantle ne peut pas être chargée (%1). Réinstaller Vantle la rétablit.</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;</source>
        <translation>commande inconnue « %1 »</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>argument inattendu « %1 »</translation>
    </message>
    <message>
        <source>Start it with `vantle` (or from your applications menu) first.</source>
        <translation>Lancez-le d’abord avec `vantle` (ou depuis le menu des applications).</translation>
    </message>
</context>
<context>
    <name>Contrast</name>
    <message>
        <source>body text</source>
        <translation>texte courant</translation>
    </message>
    <message>
        <source>large or bold text</source>
        <translation>grand texte ou texte gras</translation>
    </message>
    <message>
        <source>headlines</source>
        <translation>titres</translation>
    </message>
    <message>
        <source>non-text only</source>
        <translation>éléments non textuels seulement</translation>
    </message>
    <message>
        <source>dividers and disabled parts only</source>
        <translation>séparateurs et éléments désactivés seulement</translation>
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
        <translation> pour </translation>
    </message>
</context>
<context>
    <name>ContrastComparisonView</name>
    <message>
        <source>Text and Background</source>
        <translation>Texte et fond</translation>
    </message>
    <message>
        <source>Pick another color to see how the two read as text and background.</source>
        <translation>Prélevez une autre couleur pour voir comment les deux se lisent en texte et en fond.</translation>
    </message>
    <message>
        <source>Compared color</source>
        <translation>Couleur comparée</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Inverser</translation>
    </message>
    <message>
        <source>Swap text and background</source>
        <translation>Inverser texte et fond</translation>
    </message>
    <message>
        <source>Sample text</source>
        <translation>Exemple de texte</translation>
    </message>
    <message>
        <source>Normal text</source>
        <translation>Texte normal</translation>
    </message>
    <message>
        <source>Large text</source>
        <translation>Grand texte</translation>
    </message>
    <message>
        <source>Non-text</source>
        <translation>Non textuel</translation>
    </message>
    <message>
        <source>APCA</source>
        <translation>APCA</translation>
    </message>
    <message>
        <source>%1 as text on %2</source>
        <translation>%1 en texte sur %2</translation>
    </message>
    <message>
        <source>Preview: %1 text on %2</source>
        <translation>Aperçu : texte %1 sur %2</translation>
    </message>
    <message>
        <source>Now %1 is the text</source>
        <translation>%1 est maintenant le texte</translation>
    </message>
    <message>
        <source> to 1</source>
        <extracomment>A contrast ratio read aloud: &quot;4.5 to 1&quot;; keep the spaces</extracomment>
        <translation> pour 1</translation>
    </message>
    <message>
        <source>Contrast ratio %1</source>
        <translation>Rapport de contraste %1</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1 : %2, %3</translation>
    </message>
    <message>
        <source>Lc %1</source>
        <translation>Lc %1</translation>
    </message>
    <message>
        <source>APCA: Lc %1, %2</source>
        <translation>APCA : Lc %1, %2</translation>
    </message>
</context>
<context>
    <name>FileExportDialogs</name>
    <message>
        <source>Export Colors</source>
        <translation>Exporter les couleurs</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Plain Text (*.txt)</source>
        <translation>Texte brut (*.txt)</translation>
    </message>
    <message>
        <source>Export Failed</source>
        <translation>Échec de l’exportation</translation>
    </message>
</context>
<context>
    <name>FormatLine</name>
    <message>
        <source>Copy</source>
        <extracomment>The verb: what pressing the line does, copy its colour text</extracomment>
        <translation>Copier</translation>
    </message>
</context>
<context>
    <name>HotkeyManager</name>
    <message>
        <source>Pick a color</source>
        <translation>Prélever une couleur</translation>
    </message>
    <message>
        <source>Show or hide Vantle</source>
        <translation>Afficher ou masquer Vantle</translation>
    </message>
</context>
<context>
    <name>HotkeyRecorderView</name>
    <message>
        <source>Clear the %1 shortcut</source>
        <translation>Effacer le raccourci « %1 »</translation>
    </message>
    <message>
        <source>Press shortcut…</source>
        <translation>Appuyez sur le raccourci…</translation>
    </message>
    <message>
        <source>None - click to set</source>
        <translation>Aucun – cliquer pour définir</translation>
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
        <translation>Maj</translation>
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
        <translation>Prélever une couleur</translation>
    </message>
    <message>
        <source>Last: #FF6B35</source>
        <translation>Dernière : #FF6B35</translation>
    </message>
    <message>
        <source>Start Using vantle</source>
        <translation>Commencer avec vantle</translation>
    </message>
    <message>
        <source>You&apos;re all set.</source>
        <translation>Tout est prêt.</translation>
    </message>
    <message>
        <source>Look for the eyedropper icon in your system tray.</source>
        <translation>Cherchez l’icône de pipette dans la zone de notification.</translation>
    </message>
    <message>
        <source>Pick any color from anywhere on your screen with one click.</source>
        <translation>Prélevez n’importe quelle couleur, n’importe où sur l’écran, en un clic.</translation>
    </message>
    <message>
        <source>The color value is copied to your clipboard instantly in your preferred format.</source>
        <translation>La valeur de la couleur est aussitôt copiée dans le presse-papiers, dans votre format préféré.</translation>
    </message>
    <message>
        <source>Pin your favorite colors and build a palette you can export anytime.</source>
        <translation>Épinglez vos couleurs préférées et composez une palette à exporter quand vous voulez.</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Commencer</translation>
    </message>
    <message>
        <source>Welcome to vantle</source>
        <translation>Bienvenue dans vantle</translation>
    </message>
</context>
<context>
    <name>OnboardingWindow</name>
    <message>
        <source>Welcome to vantle</source>
        <translation>Bienvenue dans vantle</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
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
        <translation>Mise à jour du logiciel</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>Vous êtes à jour !</translation>
    </message>
    <message>
        <source>%1 %2 is the latest version.</source>
        <translation>%1 %2 est la dernière version.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>A new version of %1 is available!</source>
        <translation>Une nouvelle version de %1 est disponible !</translation>
    </message>
    <message>
        <source>%1 %2 is now available — you have %3. Would you like to download it now?</source>
        <translation>%1 %2 est disponible — vous avez la %3. Voulez-vous la télécharger maintenant ?</translation>
    </message>
    <message>
        <source>Release Notes:</source>
        <translation>Notes de version :</translation>
    </message>
    <message>
        <source>Read the release notes</source>
        <translation>Lire les notes de version</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Ignorer cette version</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Me le rappeler plus tard</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Télécharger</translation>
    </message>
    <message>
        <source>Downloading %1…</source>
        <translation>Téléchargement de %1…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Update Failed</source>
        <translation>Échec de la mise à jour</translation>
    </message>
    <message>
        <source>%1 was downloaded in the background.</source>
        <translation>%1 a été téléchargé en arrière-plan.</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 a été téléchargé.</translation>
    </message>
    <message>
        <source>The file is saved as %1. Install it the way you installed this version.</source>
        <translation>Le fichier est enregistré sous %1. Installez-le comme vous avez installé cette version.</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Vantle Settings</source>
        <translation>Paramètres de Vantle</translation>
    </message>
</context>
<context>
    <name>RenameColorSheet</name>
    <message>
        <source>Rename Color</source>
        <translation>Renommer la couleur</translation>
    </message>
    <message>
        <source>Color name (optional)</source>
        <translation>Nom de la couleur (facultatif)</translation>
    </message>
    <message>
        <source>Color name</source>
        <translation>Nom de la couleur</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
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
        <translation>Prélevez n’importe quelle couleur, n’importe où sur l’écran, en un clic.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Rechercher des mises à jour…</translation>
    </message>
    <message>
        <source>Automatically download updates</source>
        <translation>Télécharger les mises à jour automatiquement</translation>
    </message>
    <message>
        <source>Vantle Website</source>
        <translation>Site web de Vantle</translation>
    </message>
    <message>
        <source>%1 Website</source>
        <translation>Site web de %1</translation>
    </message>
    <message>
        <source>Made by %1.</source>
        <translation>Réalisé par %1.</translation>
    </message>
    <message>
        <source>Default format</source>
        <translation>Format par défaut</translation>
    </message>
    <message>
        <source>Color Format</source>
        <translation>Format de couleur</translation>
    </message>
    <message>
        <source>Pick color</source>
        <translation>Prélever une couleur</translation>
    </message>
    <message>
        <source>Toggle popup</source>
        <translation>Afficher/masquer la fenêtre</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>On GNOME these shortcuts live among the custom shortcuts in Settings › Keyboard.</source>
        <translation>Sous GNOME, ces raccourcis figurent parmi les raccourcis personnalisés dans Paramètres › Clavier.</translation>
    </message>
    <message>
        <source>Show colored dot for last picked color</source>
        <translation>Afficher un point de la dernière couleur prélevée</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>Icône de notification</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Lancer à l’ouverture de session</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>History limit</source>
        <translation>Taille de l’historique</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Effacer l’historique</translation>
    </message>
    <message>
        <source>Pinned colors will be preserved.</source>
        <translation>Les couleurs épinglées seront conservées.</translation>
    </message>
    <message>
        <source>Data</source>
        <extracomment>Heading of the settings about the stored history</extracomment>
        <translation>Données</translation>
    </message>
    <message>
        <source>Reduce History</source>
        <translation>Réduire l’historique</translation>
    </message>
    <message>
        <source>This will remove the oldest 1 color.</source>
        <translation>La couleur la plus ancienne sera supprimée.</translation>
    </message>
    <message numerus="yes">
        <source>This will remove the oldest %n colors.</source>
        <translation>
            <numerusform>La couleur la plus ancienne sera supprimée.</numerusform>
            <numerusform>Les %n couleurs les plus anciennes seront supprimées.</numerusform>
        </translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation>En savoir plus</translation>
    </message>
    <message>
        <source>No other %1 applications are listed in this build.</source>
        <translation>Aucune autre application de %1 n’est listée dans cette version.</translation>
    </message>
    <message>
        <source>All %1 applications</source>
        <translation>Toutes les applications de %1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>More %1</source>
        <extracomment>The tab of the maker&apos;s other applications; %1 is the maker&apos;s name</extracomment>
        <translation>Plus de %1</translation>
    </message>
</context>
<context>
    <name>UpdaterController</name>
    <message>
        <source>This app</source>
        <translation>Cette application</translation>
    </message>
</context>
</TS>
