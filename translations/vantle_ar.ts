<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>AppDelegate</name>
    <message>
        <source>Pick Color</source>
        <translation>التقط لونًا</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>الإعدادات…</translation>
    </message>
    <message>
        <source>Quit vantle</source>
        <translation>أنهِ vantle</translation>
    </message>
</context>
<context>
    <name>AppcastUpdater</name>
    <message>
        <source>This copy of %1 has no key to verify updates with, so version %2 was not downloaded. Please get it from the %1 website.</source>
        <translation>لا تملك هذه النسخة من %1 مفتاحًا للتحقق من التحديثات، لذا لم يُنزَّل الإصدار %2. يُرجى الحصول عليه من موقع %1.</translation>
    </message>
    <message>
        <source>The update could not be saved in %1.</source>
        <translation>تعذّر حفظ التحديث في %1.</translation>
    </message>
    <message>
        <source>The update could not be saved in %1, so the partial file was deleted.</source>
        <translation>تعذّر حفظ التحديث في %1، لذا حُذف الملف الناقص.</translation>
    </message>
    <message>
        <source>The update could not be downloaded, so the partial file was deleted.</source>
        <translation>تعذّر تنزيل التحديث، لذا حُذف الملف الناقص.</translation>
    </message>
    <message>
        <source>This copy of %1 has no usable key to verify updates with, so the downloaded file was deleted. Please get the new version from the %1 website.</source>
        <translation>لا تملك هذه النسخة من %1 مفتاحًا صالحًا للتحقق من التحديثات، لذا حُذف الملف المنزَّل. يُرجى الحصول على الإصدار الجديد من موقع %1.</translation>
    </message>
    <message>
        <source>The downloaded file does not have the size the update feed announced, so it was deleted.</source>
        <translation>حجم الملف المنزَّل لا يطابق ما أعلنته قناة التحديثات، لذا حُذف.</translation>
    </message>
    <message>
        <source>The downloaded file does not carry a valid signature from the maker of %1, so it was deleted.</source>
        <translation>لا يحمل الملف المنزَّل توقيعًا صالحًا من صانع %1، لذا حُذف.</translation>
    </message>
    <message>
        <source>The downloaded file could not be read back for checking, so it was deleted.</source>
        <translation>تعذّرت قراءة الملف المنزَّل للتحقق منه، لذا حُذف.</translation>
    </message>
</context>
<context>
    <name>ColorDetailView</name>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Contrast Ratios</source>
        <translation>نسب التباين</translation>
    </message>
    <message>
        <source>vs White</source>
        <translation>مقابل الأبيض</translation>
    </message>
    <message>
        <source>vs Black</source>
        <translation>مقابل الأسود</translation>
    </message>
    <message>
        <source>Color details</source>
        <translation>تفاصيل اللون</translation>
    </message>
</context>
<context>
    <name>ColorFormat</name>
    <message>
        <source>Hex</source>
        <extracomment>The name of a colour format: hexadecimal digits, as in #FF6B36</extracomment>
        <translation>ست عشري</translation>
    </message>
    <message>
        <source>Hex (lowercase)</source>
        <extracomment>The name of a colour format: hexadecimal digits in lower case, as in #ff6b36</extracomment>
        <translation>ست عشري (أحرف صغيرة)</translation>
    </message>
    <message>
        <source>RGB (decimal)</source>
        <extracomment>The name of a colour format: red, green and blue as whole numbers 0 to 255, as in 255, 107, 54</extracomment>
        <translation>RGB (عشري)</translation>
    </message>
</context>
<context>
    <name>ColorListView</name>
    <message>
        <source>colors</source>
        <extracomment>Spoken after the number of colours in the history (&quot;3 colors&quot;)</extracomment>
        <translation>الألوان</translation>
    </message>
    <message>
        <source>Pick Color</source>
        <translation>التقط لونًا</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Export colors</source>
        <translation>صدّر الألوان</translation>
    </message>
    <message>
        <source>Export Pinned as Text</source>
        <translation>صدّر المثبّتة نصًّا</translation>
    </message>
    <message>
        <source>Export Pinned as JSON</source>
        <translation>صدّر المثبّتة بصيغة JSON</translation>
    </message>
    <message>
        <source>Export All as Text</source>
        <translation>صدّر الكل نصًّا</translation>
    </message>
    <message>
        <source>Export All as JSON</source>
        <translation>صدّر الكل بصيغة JSON</translation>
    </message>
    <message>
        <source>Quit vantle</source>
        <translation>أنهِ vantle</translation>
    </message>
    <message>
        <source>No colors yet</source>
        <translation>لا ألوان بعد</translation>
    </message>
    <message>
        <source>Click Pick Color to get started</source>
        <translation>انقر «التقط لونًا» لتبدأ</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>الألوان</translation>
    </message>
    <message>
        <source>PINNED</source>
        <extracomment>Heading of the list of pinned colours, in capitals where the language has them</extracomment>
        <translation>المثبّتة</translation>
    </message>
    <message>
        <source>RECENT</source>
        <translation>الأخيرة</translation>
    </message>
    <message>
        <source>Picking…</source>
        <translation>يجري الالتقاط…</translation>
    </message>
</context>
<context>
    <name>ColorListViewModel</name>
    <message>
        <source>Copied %1</source>
        <extracomment>The confirmation after a copy; %1 is the colour text put on the clipboard</extracomment>
        <translation>نُسخ %1</translation>
    </message>
    <message>
        <source>Not copied: the clipboard is not available</source>
        <translation>لم يُنسخ: الحافظة غير متاحة</translation>
    </message>
    <message>
        <source>“%1” could not be written: %2</source>
        <translation>تعذّرت كتابة «%1»: %2</translation>
    </message>
</context>
<context>
    <name>ColorRowView</name>
    <message>
        <source>pinned</source>
        <extracomment>Spoken state of a colour kept in the palette</extracomment>
        <translation>مثبّت</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>انسخ</translation>
    </message>
    <message>
        <source>Unpin</source>
        <extracomment>The verbs of the menu: keep the colour in the palette, or take it out (Unpin)</extracomment>
        <translation>أزل التثبيت</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>ثبّت</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>غيّر الاسم…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>احذف</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>خيار مجهول «%1»</translation>
    </message>
    <message>
        <source>cannot read the colour &quot;%1&quot;; accepted: %2</source>
        <translation>تعذّرت قراءة اللون «%1»؛ المقبول: %2</translation>
    </message>
    <message>
        <source>any text Vantle writes (#RRGGBB, rgb(), rgba(), hsl(), hsb(), R, G, B, Color(), UIColor()), #RGB, RRGGBB, or r,g,b[,a] with components such as 1.0,0.42,0.21</source>
        <translation>أي نص يكتبه Vantle (#RRGGBB، rgb()، rgba()، hsl()، hsb()، R, G, B، Color()، UIColor())، أو #RGB، أو RRGGBB، أو r,g,b[,a] بمكونات مثل 1.0,0.42,0.21</translation>
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
        <translation>الاستخدام: vantle [أمر] [خيارات]

دون أمر، يبدأ Vantle في صينية النظام (أو، إن كان يعمل، يُظهر نافذته
المنبثقة أو يخفيها).

الأوامر:
  format [--format NAME | --all] [--contrast] COLOR...
      اطبع الألوان نصًّا. COLOR هو أي نص يكتبه Vantle (rgb(...)،
      hsl(...)...)، أو #RGB، أو #RRGGBB، أو RRGGBB، أو مكونات sRGB
      r,g,b أو r,g,b,a بين 0 و1. دون --format يُستخدم التنسيق المفضّل.
      --all يطبع التنسيقات التسعة كلها بشكل LABEL&lt;TAB&gt;TEXT؛ و--contrast
      يضيف تباين WCAG مقابل الأبيض والأسود.
        vantle format &apos;#FF6B36&apos; --format hsl
        vantle format --all --contrast 1.0,0.42,0.21
  contrast [--json] FOREGROUND BACKGROUND
      اطبع نسبة تباين WCAG 2 للون نص على خلفيته، ودرجاتها للنص العادي
      والنص الكبير والعناصر غير النصية، وتباين الإضاءة APCA Lc؛ و--json
      يطبع كائنًا واحدًا. اللون هو أي نص يكتبه Vantle، أو #RGB، أو
      الأشكال التي يقرؤها `format`.
        vantle contrast &apos;#888&apos; &apos;#FFF&apos;
  export [--pinned] [--json] [-o FILE]
      اطبع السجل المحفوظ (أو الألوان المثبّتة وحدها) نصًّا بالتنسيق
      المفضّل، أو بصيغة JSON؛ ومع -o اكتبه في FILE دفعة واحدة.
        vantle export --pinned --json -o palette.json
  pick [--print [--format NAME]]
      اطلب من Vantle العامل أن يبدأ التقاطًا (اربط هذا بمفتاح في إعدادات
      لوحة المفاتيح لسطح مكتبك). مع --print التقط في هذه العملية واطبع
      اللون؛ حالة الخروج 1 عند الإلغاء.
        vantle pick
        vantle pick --print --format hexLower
  toggle
      اطلب من Vantle العامل أن يُظهر نافذته المنبثقة أو يخفيها.
        vantle toggle

الخيارات:
  -h, --help     اعرض هذه المساعدة.
  -v, --version  اعرض الإصدار.

الإعدادات: %1
</translation>
    </message>
    <message>
        <source>Usage: vantle contrast [--json] FOREGROUND BACKGROUND
The WCAG 2 contrast ratio of FOREGROUND (text, an icon, a border) on
BACKGROUND, its grades for normal text (AA 4.5, AAA 7), large text (AA 3,
AAA 4.5) and non-text parts (3), and the APCA lightness contrast Lc
(negative for light on dark). A translucent foreground is drawn on the
background first; the background must be opaque.</source>
        <translation>الاستخدام: vantle contrast [--json] FOREGROUND BACKGROUND
نسبة تباين WCAG 2 للون FOREGROUND (نص، أو أيقونة، أو إطار) على BACKGROUND،
ودرجاتها للنص العادي (AA 4.5، AAA 7)، والنص الكبير (AA 3، AAA 4.5)،
والعناصر غير النصية (3)، وتباين الإضاءة APCA Lc (سالب للفاتح على الداكن).
تُرسم المقدّمة الشفافة جزئيًّا على الخلفية أولًا؛ ويجب أن تكون الخلفية معتمة.</translation>
    </message>
    <message>
        <source>Colours: %1</source>
        <translation>الألوان: %1</translation>
    </message>
    <message numerus="yes">
        <source>needs a foreground and a background colour, %n given</source>
        <translation>
            <numerusform>يحتاج إلى لون مقدّمة ولون خلفية، ولم يُعطَ أي لون (%n)</numerusform>
            <numerusform>يحتاج إلى لون مقدّمة ولون خلفية، وأُعطي لون واحد (%n)</numerusform>
            <numerusform>يحتاج إلى لون مقدّمة ولون خلفية، وأُعطي لونان (%n)</numerusform>
            <numerusform>يحتاج إلى لون مقدّمة ولون خلفية، وأُعطيت %n ألوان</numerusform>
            <numerusform>يحتاج إلى لون مقدّمة ولون خلفية، وأُعطي %n لونًا</numerusform>
            <numerusform>يحتاج إلى لون مقدّمة ولون خلفية، وأُعطي %n لون</numerusform>
        </translation>
    </message>
    <message>
        <source>the background must be opaque (its alpha is %1)</source>
        <translation>يجب أن تكون الخلفية معتمة (قيمة ألفا فيها %1)</translation>
    </message>
    <message>
        <source>-o needs a file name</source>
        <translation>يحتاج -o إلى اسم ملف</translation>
    </message>
    <message>
        <source>Usage: vantle export [--pinned] [--json] [-o FILE]
Prints the stored colour history (with --pinned only the pinned colours), newest
first, as text in the preferred format or as JSON; -o writes it to FILE.</source>
        <translation>الاستخدام: vantle export [--pinned] [--json] [-o FILE]
يطبع سجل الألوان المحفوظ (ومع --pinned الألوان المثبّتة وحدها)، الأحدث
أولًا، نصًّا بالتنسيق المفضّل أو بصيغة JSON؛ و-o يكتبه في FILE.</translation>
    </message>
    <message>
        <source>unknown argument &quot;%1&quot;</source>
        <translation>معامل مجهول «%1»</translation>
    </message>
    <message>
        <source>the stored colour history cannot be read (%1)</source>
        <translation>تعذّرت قراءة سجل الألوان المحفوظ (%1)</translation>
    </message>
    <message>
        <source>cannot write &quot;%1&quot;: %2</source>
        <translation>تعذّرت كتابة «%1»: %2</translation>
    </message>
    <message>
        <source>--format needs a format name; accepted: %1</source>
        <translation>يحتاج --format إلى اسم تنسيق؛ المقبول: %1</translation>
    </message>
    <message>
        <source>unknown format &quot;%1&quot;; accepted: %2</source>
        <translation>تنسيق مجهول «%1»؛ المقبول: %2</translation>
    </message>
    <message>
        <source>Usage: vantle format [--format NAME | --all] [--contrast] COLOR...</source>
        <translation>الاستخدام: vantle format [--format NAME | --all] [--contrast] COLOR...</translation>
    </message>
    <message>
        <source>Formats: %1</source>
        <translation>التنسيقات: %1</translation>
    </message>
    <message>
        <source>--format and --all cannot be used together</source>
        <translation>لا يمكن استخدام --format و--all معًا</translation>
    </message>
    <message>
        <source>no colour given; accepted: %1</source>
        <translation>لم يُعطَ أي لون؛ المقبول: %1</translation>
    </message>
    <message>
        <source>Vantle is not running.</source>
        <translation>Vantle لا يعمل.</translation>
    </message>
    <message>
        <source>the running Vantle did not answer.</source>
        <translation>لم يُجب Vantle العامل.</translation>
    </message>
    <message>
        <source>the running Vantle did not answer (%1).</source>
        <translation>لم يُجب Vantle العامل (%1).</translation>
    </message>
    <message>
        <source>the command &quot;%1&quot; is not available in this build</source>
        <translation>الأمر «%1» غير متاح في هذا البناء</translation>
    </message>
    <message>
        <source>the desktop part of Vantle cannot be loaded (%1). Reinstalling Vantle puts it back.</source>
        <translation>تعذّر تحميل جزء سطح المكتب من Vantle (%1). إعادة تثبيت Vantle تعيده.</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;</source>
        <translation>أمر مجهول «%1»</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>معامل غير متوقع «%1»</translation>
    </message>
    <message>
        <source>Start it with `vantle` (or from your applications menu) first.</source>
        <translation>شغّله أولًا بالأمر `vantle` (أو من قائمة التطبيقات).</translation>
    </message>
</context>
<context>
    <name>Contrast</name>
    <message>
        <source>body text</source>
        <translation>نص المتن</translation>
    </message>
    <message>
        <source>large or bold text</source>
        <translation>نص كبير أو عريض</translation>
    </message>
    <message>
        <source>headlines</source>
        <translation>العناوين</translation>
    </message>
    <message>
        <source>non-text only</source>
        <translation>العناصر غير النصية فقط</translation>
    </message>
    <message>
        <source>dividers and disabled parts only</source>
        <translation>الفواصل والعناصر المعطّلة فقط</translation>
    </message>
    <message>
        <source>invisible</source>
        <translation>غير مرئي</translation>
    </message>
</context>
<context>
    <name>ContrastBadge</name>
    <message>
        <source> to </source>
        <extracomment>The colon of a contrast ratio read aloud: &quot;4.5 to 1&quot;; keep the spaces</extracomment>
        <translation> إلى </translation>
    </message>
</context>
<context>
    <name>ContrastComparisonView</name>
    <message>
        <source>Text and Background</source>
        <translation>النص والخلفية</translation>
    </message>
    <message>
        <source>Pick another color to see how the two read as text and background.</source>
        <translation>التقط لونًا آخر لترى كيف يُقرأ اللونان نصًّا وخلفية.</translation>
    </message>
    <message>
        <source>Compared color</source>
        <translation>اللون المقارَن</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>بدّل</translation>
    </message>
    <message>
        <source>Swap text and background</source>
        <translation>بدّل النص والخلفية</translation>
    </message>
    <message>
        <source>Sample text</source>
        <translation>نص تجريبي</translation>
    </message>
    <message>
        <source>Normal text</source>
        <translation>نص عادي</translation>
    </message>
    <message>
        <source>Large text</source>
        <translation>نص كبير</translation>
    </message>
    <message>
        <source>Non-text</source>
        <translation>غير نصي</translation>
    </message>
    <message>
        <source>APCA</source>
        <translation>APCA</translation>
    </message>
    <message>
        <source>%1 as text on %2</source>
        <translation>%1 نصًّا على %2</translation>
    </message>
    <message>
        <source>Preview: %1 text on %2</source>
        <translation>معاينة: نص %1 على %2</translation>
    </message>
    <message>
        <source>Now %1 is the text</source>
        <translation>الآن %1 هو النص</translation>
    </message>
    <message>
        <source> to 1</source>
        <extracomment>A contrast ratio read aloud: &quot;4.5 to 1&quot;; keep the spaces</extracomment>
        <translation> إلى 1</translation>
    </message>
    <message>
        <source>Contrast ratio %1</source>
        <translation>نسبة التباين %1</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2، %3</translation>
    </message>
    <message>
        <source>Lc %1</source>
        <translation>Lc %1</translation>
    </message>
    <message>
        <source>APCA: Lc %1, %2</source>
        <translation>APCA: Lc %1، %2</translation>
    </message>
</context>
<context>
    <name>FileExportDialogs</name>
    <message>
        <source>Export Colors</source>
        <translation>صدّر الألوان</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Plain Text (*.txt)</source>
        <translation>نص مجرّد (*.txt)</translation>
    </message>
    <message>
        <source>Export Failed</source>
        <translation>فشل التصدير</translation>
    </message>
</context>
<context>
    <name>FormatLine</name>
    <message>
        <source>Copy</source>
        <extracomment>The verb: what pressing the line does, copy its colour text</extracomment>
        <translation>انسخ</translation>
    </message>
</context>
<context>
    <name>HotkeyManager</name>
    <message>
        <source>Pick a color</source>
        <translation>التقط لونًا</translation>
    </message>
    <message>
        <source>Show or hide Vantle</source>
        <translation>أظهر Vantle أو أخفِه</translation>
    </message>
</context>
<context>
    <name>HotkeyRecorderView</name>
    <message>
        <source>Clear the %1 shortcut</source>
        <translation>امسح اختصار «%1»</translation>
    </message>
    <message>
        <source>Press shortcut…</source>
        <translation>اضغط الاختصار…</translation>
    </message>
    <message>
        <source>None - click to set</source>
        <translation>لا شيء - انقر للتعيين</translation>
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
        <translation>التقط لونًا</translation>
    </message>
    <message>
        <source>Last: #FF6B35</source>
        <translation>الأخير: ‎#FF6B35</translation>
    </message>
    <message>
        <source>Start Using vantle</source>
        <translation>ابدأ استخدام vantle</translation>
    </message>
    <message>
        <source>You&apos;re all set.</source>
        <translation>كل شيء جاهز.</translation>
    </message>
    <message>
        <source>Look for the eyedropper icon in your system tray.</source>
        <translation>ابحث عن أيقونة القطّارة في صينية النظام.</translation>
    </message>
    <message>
        <source>Pick any color from anywhere on your screen with one click.</source>
        <translation>التقط أي لون من أي مكان على شاشتك بنقرة واحدة.</translation>
    </message>
    <message>
        <source>The color value is copied to your clipboard instantly in your preferred format.</source>
        <translation>تُنسخ قيمة اللون فورًا إلى الحافظة بتنسيقك المفضّل.</translation>
    </message>
    <message>
        <source>Pin your favorite colors and build a palette you can export anytime.</source>
        <translation>ثبّت ألوانك المفضّلة وكوّن لوحة ألوان تصدّرها متى شئت.</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>ابدأ</translation>
    </message>
    <message>
        <source>Welcome to vantle</source>
        <translation>مرحبًا بك في vantle</translation>
    </message>
</context>
<context>
    <name>OnboardingWindow</name>
    <message>
        <source>Welcome to vantle</source>
        <translation>مرحبًا بك في vantle</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>أغلق</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <comment>Translate this string to the string &apos;LTR&apos; in left-to-right languages or to &apos;RTL&apos; in right-to-left languages (such as Hebrew and Arabic) to get proper widget layout.</comment>
        <translation>RTL</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Software Update</source>
        <translation>تحديث البرنامج</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>لديك أحدث إصدار!</translation>
    </message>
    <message>
        <source>%1 %2 is the latest version.</source>
        <translation>%1 %2 هو أحدث إصدار.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>حسنًا</translation>
    </message>
    <message>
        <source>A new version of %1 is available!</source>
        <translation>يتوفّر إصدار جديد من %1!</translation>
    </message>
    <message>
        <source>%1 %2 is now available — you have %3. Would you like to download it now?</source>
        <translation>%1 %2 متاح الآن — ولديك %3. أتريد تنزيله الآن؟</translation>
    </message>
    <message>
        <source>Release Notes:</source>
        <translation>ملاحظات الإصدار:</translation>
    </message>
    <message>
        <source>Read the release notes</source>
        <translation>اقرأ ملاحظات الإصدار</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>تخطَّ هذا الإصدار</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>ذكّرني لاحقًا</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>نزّل</translation>
    </message>
    <message>
        <source>Downloading %1…</source>
        <translation>يجري تنزيل %1…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>Update Failed</source>
        <translation>فشل التحديث</translation>
    </message>
    <message>
        <source>%1 was downloaded in the background.</source>
        <translation>نُزّل %1 في الخلفية.</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>نُزّل %1.</translation>
    </message>
    <message>
        <source>The file is saved as %1. Install it the way you installed this version.</source>
        <translation>حُفظ الملف باسم %1. ثبّته بالطريقة التي ثبّتّ بها هذا الإصدار.</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>أظهر في المجلد</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>أغلق</translation>
    </message>
    <message>
        <source>Vantle Settings</source>
        <translation>إعدادات Vantle</translation>
    </message>
</context>
<context>
    <name>RenameColorSheet</name>
    <message>
        <source>Rename Color</source>
        <translation>غيّر اسم اللون</translation>
    </message>
    <message>
        <source>Color name (optional)</source>
        <translation>اسم اللون (اختياري)</translation>
    </message>
    <message>
        <source>Color name</source>
        <translation>اسم اللون</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>احفظ</translation>
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
        <translation>الإصدار %1</translation>
    </message>
    <message>
        <source>Pick any color from anywhere on your screen with one click.</source>
        <translation>التقط أي لون من أي مكان على شاشتك بنقرة واحدة.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>التمس التحديثات…</translation>
    </message>
    <message>
        <source>Automatically download updates</source>
        <translation>نزّل التحديثات تلقائيًّا</translation>
    </message>
    <message>
        <source>Vantle Website</source>
        <translation>موقع Vantle</translation>
    </message>
    <message>
        <source>%1 Website</source>
        <translation>موقع %1</translation>
    </message>
    <message>
        <source>Made by %1.</source>
        <translation>من صنع %1.</translation>
    </message>
    <message>
        <source>Default format</source>
        <translation>التنسيق المبدئي</translation>
    </message>
    <message>
        <source>Color Format</source>
        <translation>تنسيق اللون</translation>
    </message>
    <message>
        <source>Pick color</source>
        <translation>التقط لونًا</translation>
    </message>
    <message>
        <source>Toggle popup</source>
        <translation>أظهر النافذة أو أخفِها</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>اختصارات لوحة المفاتيح</translation>
    </message>
    <message>
        <source>On GNOME these shortcuts live among the custom shortcuts in Settings › Keyboard.</source>
        <translation>في جنوم تجد هذه الاختصارات بين الاختصارات المخصّصة في الإعدادات › لوحة المفاتيح.</translation>
    </message>
    <message>
        <source>Show colored dot for last picked color</source>
        <translation>أظهر نقطة بلون آخر لون ملتقط</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>أيقونة الصينية</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>شغّل عند الولوج</translation>
    </message>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>History limit</source>
        <translation>حد السجل</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>امسح السجل</translation>
    </message>
    <message>
        <source>Pinned colors will be preserved.</source>
        <translation>ستبقى الألوان المثبّتة.</translation>
    </message>
    <message>
        <source>Data</source>
        <extracomment>Heading of the settings about the stored history</extracomment>
        <translation>البيانات</translation>
    </message>
    <message>
        <source>Reduce History</source>
        <translation>قلّص السجل</translation>
    </message>
    <message>
        <source>This will remove the oldest 1 color.</source>
        <translation>سيُزال أقدم لون.</translation>
    </message>
    <message numerus="yes">
        <source>This will remove the oldest %n colors.</source>
        <translation>
            <numerusform>لن يُزال أي لون (%n).</numerusform>
            <numerusform>سيُزال أقدم لون (%n).</numerusform>
            <numerusform>سيُزال أقدم لونين (%n).</numerusform>
            <numerusform>ستُزال أقدم %n ألوان.</numerusform>
            <numerusform>سيُزال أقدم %n لونًا.</numerusform>
            <numerusform>سيُزال أقدم %n لون.</numerusform>
        </translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>تابع</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation>اعرف المزيد</translation>
    </message>
    <message>
        <source>No other %1 applications are listed in this build.</source>
        <translation>لا تطبيقات أخرى من %1 مُدرجة في هذا البناء.</translation>
    </message>
    <message>
        <source>All %1 applications</source>
        <translation>كل تطبيقات %1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>عن</translation>
    </message>
    <message>
        <source>More %1</source>
        <extracomment>The tab of the maker&apos;s other applications; %1 is the maker&apos;s name</extracomment>
        <translation>المزيد من %1</translation>
    </message>
</context>
<context>
    <name>UpdaterController</name>
    <message>
        <source>This app</source>
        <translation>هذا التطبيق</translation>
    </message>
</context>
</TS>
