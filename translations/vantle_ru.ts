<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>AppDelegate</name>
    <message>
        <source>Pick Color</source>
        <translation>Взять цвет</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Параметры…</translation>
    </message>
    <message>
        <source>Quit vantle</source>
        <translation>Выйти из vantle</translation>
    </message>
</context>
<context>
    <name>AppcastUpdater</name>
    <message>
        <source>This copy of %1 has no key to verify updates with, so version %2 was not downloaded. Please get it from the %1 website.</source>
        <translation>В этой копии %1 нет ключа для проверки обновлений, поэтому версия %2 не загружена. Загрузите её с сайта %1.</translation>
    </message>
    <message>
        <source>The update could not be saved in %1.</source>
        <translation>Не удалось сохранить обновление в %1.</translation>
    </message>
    <message>
        <source>The update could not be saved in %1, so the partial file was deleted.</source>
        <translation>Не удалось сохранить обновление в %1, поэтому неполный файл удалён.</translation>
    </message>
    <message>
        <source>The update could not be downloaded, so the partial file was deleted.</source>
        <translation>Не удалось загрузить обновление, поэтому неполный файл удалён.</translation>
    </message>
    <message>
        <source>This copy of %1 has no usable key to verify updates with, so the downloaded file was deleted. Please get the new version from the %1 website.</source>
        <translation>В этой копии %1 нет пригодного ключа для проверки обновлений, поэтому загруженный файл удалён. Загрузите новую версию с сайта %1.</translation>
    </message>
    <message>
        <source>The downloaded file does not have the size the update feed announced, so it was deleted.</source>
        <translation>Размер загруженного файла не совпадает с объявленным в ленте обновлений, поэтому файл удалён.</translation>
    </message>
    <message>
        <source>The downloaded file does not carry a valid signature from the maker of %1, so it was deleted.</source>
        <translation>У загруженного файла нет действительной подписи разработчика %1, поэтому файл удалён.</translation>
    </message>
    <message>
        <source>The downloaded file could not be read back for checking, so it was deleted.</source>
        <translation>Не удалось прочитать загруженный файл для проверки, поэтому он удалён.</translation>
    </message>
</context>
<context>
    <name>ColorDetailView</name>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Contrast Ratios</source>
        <translation>Коэффициенты контраста</translation>
    </message>
    <message>
        <source>vs White</source>
        <translation>с белым</translation>
    </message>
    <message>
        <source>vs Black</source>
        <translation>с чёрным</translation>
    </message>
    <message>
        <source>Color details</source>
        <translation>Сведения о цвете</translation>
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
        <translation>Hex (строчные)</translation>
    </message>
    <message>
        <source>RGB (decimal)</source>
        <extracomment>The name of a colour format: red, green and blue as whole numbers 0 to 255, as in 255, 107, 54</extracomment>
        <translation>RGB (десятичный)</translation>
    </message>
</context>
<context>
    <name>ColorListView</name>
    <message>
        <source>colors</source>
        <extracomment>Spoken after the number of colours in the history (&quot;3 colors&quot;)</extracomment>
        <translation>цвета</translation>
    </message>
    <message>
        <source>Pick Color</source>
        <translation>Взять цвет</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Export colors</source>
        <translation>Экспорт цветов</translation>
    </message>
    <message>
        <source>Export Pinned as Text</source>
        <translation>Экспорт закреплённых в текст</translation>
    </message>
    <message>
        <source>Export Pinned as JSON</source>
        <translation>Экспорт закреплённых в JSON</translation>
    </message>
    <message>
        <source>Export All as Text</source>
        <translation>Экспорт всех в текст</translation>
    </message>
    <message>
        <source>Export All as JSON</source>
        <translation>Экспорт всех в JSON</translation>
    </message>
    <message>
        <source>Quit vantle</source>
        <translation>Выйти из vantle</translation>
    </message>
    <message>
        <source>No colors yet</source>
        <translation>Цветов пока нет</translation>
    </message>
    <message>
        <source>Click Pick Color to get started</source>
        <translation>Нажмите «Взять цвет», чтобы начать</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Цвета</translation>
    </message>
    <message>
        <source>PINNED</source>
        <extracomment>Heading of the list of pinned colours, in capitals where the language has them</extracomment>
        <translation>ЗАКРЕПЛЁННЫЕ</translation>
    </message>
    <message>
        <source>RECENT</source>
        <translation>НЕДАВНИЕ</translation>
    </message>
    <message>
        <source>Picking…</source>
        <translation>Выбор цвета…</translation>
    </message>
</context>
<context>
    <name>ColorListViewModel</name>
    <message>
        <source>Copied %1</source>
        <extracomment>The confirmation after a copy; %1 is the colour text put on the clipboard</extracomment>
        <translation>Скопировано: %1</translation>
    </message>
    <message>
        <source>Not copied: the clipboard is not available</source>
        <translation>Не скопировано: буфер обмена недоступен</translation>
    </message>
    <message>
        <source>“%1” could not be written: %2</source>
        <translation>Не удалось записать «%1»: %2</translation>
    </message>
</context>
<context>
    <name>ColorRowView</name>
    <message>
        <source>pinned</source>
        <extracomment>Spoken state of a colour kept in the palette</extracomment>
        <translation>закреплён</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Unpin</source>
        <extracomment>The verbs of the menu: keep the colour in the palette, or take it out (Unpin)</extracomment>
        <translation>Открепить</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Закрепить</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Переименовать…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>неизвестный параметр «%1»</translation>
    </message>
    <message>
        <source>cannot read the colour &quot;%1&quot;; accepted: %2</source>
        <translation>не удаётся прочитать цвет «%1»; допустимо: %2</translation>
    </message>
    <message>
        <source>any text Vantle writes (#RRGGBB, rgb(), rgba(), hsl(), hsb(), R, G, B, Color(), UIColor()), #RGB, RRGGBB, or r,g,b[,a] with components such as 1.0,0.42,0.21</source>
        <translation>любой текст, который пишет Vantle (#RRGGBB, rgb(), rgba(), hsl(), hsb(), R, G, B, Color(), UIColor()), #RGB, RRGGBB или r,g,b[,a] с компонентами вида 1.0,0.42,0.21</translation>
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
        <translation>Использование: vantle [КОМАНДА] [ПАРАМЕТРЫ]

Без команды Vantle запускается в системном лотке (а если уже запущен,
показывает или скрывает своё окно).

Команды:
  format [--format NAME | --all] [--contrast] COLOR...
      Вывести цвета в виде текста. COLOR — любой текст, который пишет Vantle
      (rgb(...), hsl(...)...), #RGB, #RRGGBB, RRGGBB или компоненты sRGB
      r,g,b или r,g,b,a от 0 до 1. Без --format используется основной формат.
      --all выводит все девять форматов как LABEL&lt;TAB&gt;TEXT; --contrast
      добавляет контраст WCAG с белым и чёрным.
        vantle format &apos;#FF6B36&apos; --format hsl
        vantle format --all --contrast 1.0,0.42,0.21
  contrast [--json] FOREGROUND BACKGROUND
      Вывести коэффициент контраста WCAG 2 цвета текста на его фоне, оценки
      для обычного текста, крупного текста и нетекстовых элементов, а также
      контраст яркости APCA Lc; --json выводит один объект. Цвет — любой
      текст, который пишет Vantle, #RGB или формы, которые читает `format`.
        vantle contrast &apos;#888&apos; &apos;#FFF&apos;
  export [--pinned] [--json] [-o FILE]
      Вывести сохранённую историю (или только закреплённые цвета) текстом в
      основном формате или в JSON; с -o атомарно записать её в FILE.
        vantle export --pinned --json -o palette.json
  pick [--print [--format NAME]]
      Попросить запущенный Vantle взять цвет (назначьте это клавише в
      настройках клавиатуры вашей среды). С --print взять цвет в этом
      процессе и вывести его; код выхода 1 при отмене.
        vantle pick
        vantle pick --print --format hexLower
  toggle
      Попросить запущенный Vantle показать или скрыть своё окно.
        vantle toggle

Параметры:
  -h, --help     Показать эту справку.
  -v, --version  Показать версию.

Настройки: %1
</translation>
    </message>
    <message>
        <source>Usage: vantle contrast [--json] FOREGROUND BACKGROUND
The WCAG 2 contrast ratio of FOREGROUND (text, an icon, a border) on
BACKGROUND, its grades for normal text (AA 4.5, AAA 7), large text (AA 3,
AAA 4.5) and non-text parts (3), and the APCA lightness contrast Lc
(negative for light on dark). A translucent foreground is drawn on the
background first; the background must be opaque.</source>
        <translation>Использование: vantle contrast [--json] FOREGROUND BACKGROUND
Коэффициент контраста WCAG 2 цвета FOREGROUND (текст, значок, рамка) на
BACKGROUND, оценки для обычного текста (AA 4.5, AAA 7), крупного текста
(AA 3, AAA 4.5) и нетекстовых элементов (3), а также контраст яркости APCA Lc
(отрицательный для светлого на тёмном). Полупрозрачный передний план сначала
рисуется на фоне; фон должен быть непрозрачным.</translation>
    </message>
    <message>
        <source>Colours: %1</source>
        <translation>Цвета: %1</translation>
    </message>
    <message numerus="yes">
        <source>needs a foreground and a background colour, %n given</source>
        <translation>
            <numerusform>нужны цвет переднего плана и цвет фона, указан %n</numerusform>
            <numerusform>нужны цвет переднего плана и цвет фона, указано %n</numerusform>
            <numerusform>нужны цвет переднего плана и цвет фона, указано %n</numerusform>
        </translation>
    </message>
    <message>
        <source>the background must be opaque (its alpha is %1)</source>
        <translation>фон должен быть непрозрачным (его альфа — %1)</translation>
    </message>
    <message>
        <source>-o needs a file name</source>
        <translation>для -o нужно имя файла</translation>
    </message>
    <message>
        <source>Usage: vantle export [--pinned] [--json] [-o FILE]
Prints the stored colour history (with --pinned only the pinned colours), newest
first, as text in the preferred format or as JSON; -o writes it to FILE.</source>
        <translation>Использование: vantle export [--pinned] [--json] [-o FILE]
Выводит сохранённую историю цветов (с --pinned только закреплённые цвета),
начиная с новых, текстом в основном формате или в JSON; -o записывает её в
FILE.</translation>
    </message>
    <message>
        <source>unknown argument &quot;%1&quot;</source>
        <translation>неизвестный аргумент «%1»</translation>
    </message>
    <message>
        <source>the stored colour history cannot be read (%1)</source>
        <translation>не удаётся прочитать сохранённую историю цветов (%1)</translation>
    </message>
    <message>
        <source>cannot write &quot;%1&quot;: %2</source>
        <translation>не удаётся записать «%1»: %2</translation>
    </message>
    <message>
        <source>--format needs a format name; accepted: %1</source>
        <translation>для --format нужно имя формата; допустимо: %1</translation>
    </message>
    <message>
        <source>unknown format &quot;%1&quot;; accepted: %2</source>
        <translation>неизвестный формат «%1»; допустимо: %2</translation>
    </message>
    <message>
        <source>Usage: vantle format [--format NAME | --all] [--contrast] COLOR...</source>
        <translation>Использование: vantle format [--format NAME | --all] [--contrast] COLOR...</translation>
    </message>
    <message>
        <source>Formats: %1</source>
        <translation>Форматы: %1</translation>
    </message>
    <message>
        <source>--format and --all cannot be used together</source>
        <translation>--format и --all нельзя использовать вместе</translation>
    </message>
    <message>
        <source>no colour given; accepted: %1</source>
        <translation>цвет не указан; допустимо: %1</translation>
    </message>
    <message>
        <source>Vantle is not running.</source>
        <translation>Vantle не запущен.</translation>
    </message>
    <message>
        <source>the running Vantle did not answer.</source>
        <translation>запущенный Vantle не ответил.</translation>
    </message>
    <message>
        <source>the running Vantle did not answer (%1).</source>
        <translation>запущенный Vantle не ответил (%1).</translation>
    </message>
    <message>
        <source>the command &quot;%1&quot; is not available in this build</source>
        <translation>команда «%1» недоступна в этой сборке</translation>
    </message>
    <message>
        <source>the desktop part of Vantle cannot be loaded (%1). Reinstalling Vantle puts it back.</source>
        <translation>не удаётся загрузить графическую часть Vantle (%1). Переустановка Vantle её восстановит.</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;</source>
        <translation>неизвестная команда «%1»</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>лишний аргумент «%1»</translation>
    </message>
    <message>
        <source>Start it with `vantle` (or from your applications menu) first.</source>
        <translation>Сначала запустите его командой `vantle` (или из меню приложений).</translation>
    </message>
</context>
<context>
    <name>Contrast</name>
    <message>
        <source>body text</source>
        <translation>основной текст</translation>
    </message>
    <message>
        <source>large or bold text</source>
        <translation>крупный или жирный текст</translation>
    </message>
    <message>
        <source>headlines</source>
        <translation>заголовки</translation>
    </message>
    <message>
        <source>non-text only</source>
        <translation>только нетекстовые элементы</translation>
    </message>
    <message>
        <source>dividers and disabled parts only</source>
        <translation>только разделители и неактивные элементы</translation>
    </message>
    <message>
        <source>invisible</source>
        <translation>невидимо</translation>
    </message>
</context>
<context>
    <name>ContrastBadge</name>
    <message>
        <source> to </source>
        <extracomment>The colon of a contrast ratio read aloud: &quot;4.5 to 1&quot;; keep the spaces</extracomment>
        <translation> к </translation>
    </message>
</context>
<context>
    <name>ContrastComparisonView</name>
    <message>
        <source>Text and Background</source>
        <translation>Текст и фон</translation>
    </message>
    <message>
        <source>Pick another color to see how the two read as text and background.</source>
        <translation>Возьмите ещё один цвет, чтобы увидеть, как оба читаются как текст и фон.</translation>
    </message>
    <message>
        <source>Compared color</source>
        <translation>Сравниваемый цвет</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Поменять</translation>
    </message>
    <message>
        <source>Swap text and background</source>
        <translation>Поменять текст и фон местами</translation>
    </message>
    <message>
        <source>Sample text</source>
        <translation>Пример текста</translation>
    </message>
    <message>
        <source>Normal text</source>
        <translation>Обычный текст</translation>
    </message>
    <message>
        <source>Large text</source>
        <translation>Крупный текст</translation>
    </message>
    <message>
        <source>Non-text</source>
        <translation>Не текст</translation>
    </message>
    <message>
        <source>APCA</source>
        <translation>APCA</translation>
    </message>
    <message>
        <source>%1 as text on %2</source>
        <translation>%1 как текст на %2</translation>
    </message>
    <message>
        <source>Preview: %1 text on %2</source>
        <translation>Образец: текст %1 на %2</translation>
    </message>
    <message>
        <source>Now %1 is the text</source>
        <translation>Теперь %1 — это текст</translation>
    </message>
    <message>
        <source> to 1</source>
        <extracomment>A contrast ratio read aloud: &quot;4.5 to 1&quot;; keep the spaces</extracomment>
        <translation> к 1</translation>
    </message>
    <message>
        <source>Contrast ratio %1</source>
        <translation>Коэффициент контраста %1</translation>
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
        <translation>Экспорт цветов</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Plain Text (*.txt)</source>
        <translation>Простой текст (*.txt)</translation>
    </message>
    <message>
        <source>Export Failed</source>
        <translation>Ошибка экспорта</translation>
    </message>
</context>
<context>
    <name>FormatLine</name>
    <message>
        <source>Copy</source>
        <extracomment>The verb: what pressing the line does, copy its colour text</extracomment>
        <translation>Копировать</translation>
    </message>
</context>
<context>
    <name>HotkeyManager</name>
    <message>
        <source>Pick a color</source>
        <translation>Взять цвет</translation>
    </message>
    <message>
        <source>Show or hide Vantle</source>
        <translation>Показать или скрыть Vantle</translation>
    </message>
</context>
<context>
    <name>HotkeyRecorderView</name>
    <message>
        <source>Clear the %1 shortcut</source>
        <translation>Очистить комбинацию клавиш «%1»</translation>
    </message>
    <message>
        <source>Press shortcut…</source>
        <translation>Нажмите комбинацию…</translation>
    </message>
    <message>
        <source>None - click to set</source>
        <translation>Нет — нажмите, чтобы задать</translation>
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
        <translation>Взять цвет</translation>
    </message>
    <message>
        <source>Last: #FF6B35</source>
        <translation>Последний: #FF6B35</translation>
    </message>
    <message>
        <source>Start Using vantle</source>
        <translation>Начать работу с vantle</translation>
    </message>
    <message>
        <source>You&apos;re all set.</source>
        <translation>Всё готово.</translation>
    </message>
    <message>
        <source>Look for the eyedropper icon in your system tray.</source>
        <translation>Найдите значок пипетки в системном лотке.</translation>
    </message>
    <message>
        <source>Pick any color from anywhere on your screen with one click.</source>
        <translation>Берите любой цвет в любом месте экрана одним щелчком.</translation>
    </message>
    <message>
        <source>The color value is copied to your clipboard instantly in your preferred format.</source>
        <translation>Значение цвета сразу копируется в буфер обмена в выбранном формате.</translation>
    </message>
    <message>
        <source>Pin your favorite colors and build a palette you can export anytime.</source>
        <translation>Закрепляйте любимые цвета и собирайте палитру, которую можно экспортировать в любой момент.</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Начать</translation>
    </message>
    <message>
        <source>Welcome to vantle</source>
        <translation>Добро пожаловать в vantle</translation>
    </message>
</context>
<context>
    <name>OnboardingWindow</name>
    <message>
        <source>Welcome to vantle</source>
        <translation>Добро пожаловать в vantle</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
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
        <translation>Обновление программы</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>Установлена последняя версия!</translation>
    </message>
    <message>
        <source>%1 %2 is the latest version.</source>
        <translation>%1 %2 — последняя версия.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>A new version of %1 is available!</source>
        <translation>Доступна новая версия %1!</translation>
    </message>
    <message>
        <source>%1 %2 is now available — you have %3. Would you like to download it now?</source>
        <translation>Доступна версия %1 %2, у вас — %3. Загрузить её сейчас?</translation>
    </message>
    <message>
        <source>Release Notes:</source>
        <translation>Примечания к выпуску:</translation>
    </message>
    <message>
        <source>Read the release notes</source>
        <translation>Прочитать примечания к выпуску</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Пропустить эту версию</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Напомнить позже</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Загрузить</translation>
    </message>
    <message>
        <source>Downloading %1…</source>
        <translation>Загрузка %1…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Update Failed</source>
        <translation>Ошибка обновления</translation>
    </message>
    <message>
        <source>%1 was downloaded in the background.</source>
        <translation>%1 загружен в фоновом режиме.</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 загружен.</translation>
    </message>
    <message>
        <source>The file is saved as %1. Install it the way you installed this version.</source>
        <translation>Файл сохранён как %1. Установите его так же, как устанавливали эту версию.</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Показать в папке</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Vantle Settings</source>
        <translation>Параметры Vantle</translation>
    </message>
</context>
<context>
    <name>RenameColorSheet</name>
    <message>
        <source>Rename Color</source>
        <translation>Переименовать цвет</translation>
    </message>
    <message>
        <source>Color name (optional)</source>
        <translation>Название цвета (необязательно)</translation>
    </message>
    <message>
        <source>Color name</source>
        <translation>Название цвета</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
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
        <translation>Версия %1</translation>
    </message>
    <message>
        <source>Pick any color from anywhere on your screen with one click.</source>
        <translation>Берите любой цвет в любом месте экрана одним щелчком.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Проверить обновления…</translation>
    </message>
    <message>
        <source>Automatically download updates</source>
        <translation>Загружать обновления автоматически</translation>
    </message>
    <message>
        <source>Vantle Website</source>
        <translation>Сайт Vantle</translation>
    </message>
    <message>
        <source>%1 Website</source>
        <translation>Сайт %1</translation>
    </message>
    <message>
        <source>Made by %1.</source>
        <translation>Разработчик: %1.</translation>
    </message>
    <message>
        <source>Default format</source>
        <translation>Основной формат</translation>
    </message>
    <message>
        <source>Color Format</source>
        <translation>Формат цвета</translation>
    </message>
    <message>
        <source>Pick color</source>
        <translation>Взять цвет</translation>
    </message>
    <message>
        <source>Toggle popup</source>
        <translation>Показать/скрыть окно</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Комбинации клавиш</translation>
    </message>
    <message>
        <source>On GNOME these shortcuts live among the custom shortcuts in Settings › Keyboard.</source>
        <translation>В GNOME эти комбинации находятся среди пользовательских в Параметры › Клавиатура.</translation>
    </message>
    <message>
        <source>Show colored dot for last picked color</source>
        <translation>Показывать точку последнего взятого цвета</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>Значок в лотке</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Запускать при входе в систему</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>History limit</source>
        <translation>Размер истории</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Очистить историю</translation>
    </message>
    <message>
        <source>Pinned colors will be preserved.</source>
        <translation>Закреплённые цвета сохранятся.</translation>
    </message>
    <message>
        <source>Data</source>
        <extracomment>Heading of the settings about the stored history</extracomment>
        <translation>Данные</translation>
    </message>
    <message>
        <source>Reduce History</source>
        <translation>Сократить историю</translation>
    </message>
    <message>
        <source>This will remove the oldest 1 color.</source>
        <translation>Будет удалён самый старый цвет.</translation>
    </message>
    <message numerus="yes">
        <source>This will remove the oldest %n colors.</source>
        <translation>
            <numerusform>Будет удалён %n самый старый цвет.</numerusform>
            <numerusform>Будут удалены %n самых старых цвета.</numerusform>
            <numerusform>Будут удалены %n самых старых цветов.</numerusform>
        </translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation>Подробнее</translation>
    </message>
    <message>
        <source>No other %1 applications are listed in this build.</source>
        <translation>В этой сборке нет других приложений %1.</translation>
    </message>
    <message>
        <source>All %1 applications</source>
        <translation>Все приложения %1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>More %1</source>
        <extracomment>The tab of the maker&apos;s other applications; %1 is the maker&apos;s name</extracomment>
        <translation>Ещё от %1</translation>
    </message>
</context>
<context>
    <name>UpdaterController</name>
    <message>
        <source>This app</source>
        <translation>Это приложение</translation>
    </message>
</context>
</TS>
