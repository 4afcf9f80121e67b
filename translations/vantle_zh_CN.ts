<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AppDelegate</name>
    <message>
        <source>Pick Color</source>
        <translation>拾取颜色</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Quit vantle</source>
        <translation>退出 vantle</translation>
    </message>
</context>
<context>
    <name>AppcastUpdater</name>
    <message>
        <source>This copy of %1 has no key to verify updates with, so version %2 was not downloaded. Please get it from the %1 website.</source>
        <translation>此 %1 副本没有用于验证更新的密钥，因此未下载版本 %2。请从 %1 网站获取。</translation>
    </message>
    <message>
        <source>The update could not be saved in %1.</source>
        <translation>无法将更新保存到 %1。</translation>
    </message>
    <message>
        <source>The update could not be saved in %1, so the partial file was deleted.</source>
        <translation>无法将更新保存到 %1，因此已删除不完整的文件。</translation>
    </message>
    <message>
        <source>The update could not be downloaded, so the partial file was deleted.</source>
        <translation>无法下载更新，因此已删除不完整的文件。</translation>
    </message>
    <message>
        <source>This copy of %1 has no usable key to verify updates with, so the downloaded file was deleted. Please get the new version from the %1 website.</source>
        <translation>此 %1 副本没有可用于验证更新的密钥，因此已删除下载的文件。请从 %1 网站获取新版本。</translation>
    </message>
    <message>
        <source>The downloaded file does not have the size the update feed announced, so it was deleted.</source>
        <translation>下载的文件大小与更新源公布的不符，因此已删除。</translation>
    </message>
    <message>
        <source>The downloaded file does not carry a valid signature from the maker of %1, so it was deleted.</source>
        <translation>下载的文件没有 %1 开发者的有效签名，因此已删除。</translation>
    </message>
    <message>
        <source>The downloaded file could not be read back for checking, so it was deleted.</source>
        <translation>无法读取下载的文件进行检查，因此已删除。</translation>
    </message>
</context>
<context>
    <name>ColorDetailView</name>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Contrast Ratios</source>
        <translation>对比度</translation>
    </message>
    <message>
        <source>vs White</source>
        <translation>对白色</translation>
    </message>
    <message>
        <source>vs Black</source>
        <translation>对黑色</translation>
    </message>
    <message>
        <source>Color details</source>
        <translation>颜色详情</translation>
    </message>
</context>
<context>
    <name>ColorFormat</name>
    <message>
        <source>Hex</source>
        <extracomment>The name of a colour format: hexadecimal digits, as in #FF6B36</extracomment>
        <translation>十六进制</translation>
    </message>
    <message>
        <source>Hex (lowercase)</source>
        <extracomment>The name of a colour format: hexadecimal digits in lower case, as in #ff6b36</extracomment>
        <translation>十六进制（小写）</translation>
    </message>
    <message>
        <source>RGB (decimal)</source>
        <extracomment>The name of a colour format: red, green and blue as whole numbers 0 to 255, as in 255, 107, 54</extracomment>
        <translation>RGB（十进制）</translation>
    </message>
</context>
<context>
    <name>ColorListView</name>
    <message>
        <source>colors</source>
        <extracomment>Spoken after the number of colours in the history (&quot;3 colors&quot;)</extracomment>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Pick Color</source>
        <translation>拾取颜色</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Export colors</source>
        <translation>导出颜色</translation>
    </message>
    <message>
        <source>Export Pinned as Text</source>
        <translation>将固定的颜色导出为文本</translation>
    </message>
    <message>
        <source>Export Pinned as JSON</source>
        <translation>将固定的颜色导出为 JSON</translation>
    </message>
    <message>
        <source>Export All as Text</source>
        <translation>全部导出为文本</translation>
    </message>
    <message>
        <source>Export All as JSON</source>
        <translation>全部导出为 JSON</translation>
    </message>
    <message>
        <source>Quit vantle</source>
        <translation>退出 vantle</translation>
    </message>
    <message>
        <source>No colors yet</source>
        <translation>还没有颜色</translation>
    </message>
    <message>
        <source>Click Pick Color to get started</source>
        <translation>点击“拾取颜色”开始</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>PINNED</source>
        <extracomment>Heading of the list of pinned colours, in capitals where the language has them</extracomment>
        <translation>已固定</translation>
    </message>
    <message>
        <source>RECENT</source>
        <translation>最近</translation>
    </message>
    <message>
        <source>Picking…</source>
        <translation>正在拾取…</translation>
    </message>
</context>
<context>
    <name>ColorListViewModel</name>
    <message>
        <source>Copied %1</source>
        <extracomment>The confirmation after a copy; %1 is the colour text put on the clipboard</extracomment>
        <translation>已复制 %1</translation>
    </message>
    <message>
        <source>Not copied: the clipboard is not available</source>
        <translation>未复制：剪贴板不可用</translation>
    </message>
    <message>
        <source>“%1” could not be written: %2</source>
        <translation>无法写入“%1”：%2</translation>
    </message>
</context>
<context>
    <name>ColorRowView</name>
    <message>
        <source>pinned</source>
        <extracomment>Spoken state of a colour kept in the palette</extracomment>
        <translation>已固定</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Unpin</source>
        <extracomment>The verbs of the menu: keep the colour in the palette, or take it out (Unpin)</extracomment>
        <translation>取消固定</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>固定</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>重命名…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>未知选项“%1”</translation>
    </message>
    <message>
        <source>cannot read the colour &quot;%1&quot;; accepted: %2</source>
        <translation>无法读取颜色“%1”；可接受：%2</translation>
    </message>
    <message>
        <source>any text Vantle writes (#RRGGBB, rgb(), rgba(), hsl(), hsb(), R, G, B, Color(), UIColor()), #RGB, RRGGBB, or r,g,b[,a] with components such as 1.0,0.42,0.21</source>
        <translation>Vantle 写出的任何文本（#RRGGBB、rgb()、rgba()、hsl()、hsb()、R, G, B、Color()、UIColor()）、#RGB、RRGGBB，或分量如 1.0,0.42,0.21 的 r,g,b[,a]</translation>
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
        <translation>用法：vantle [命令] [选项]

不带命令时，Vantle 在系统托盘中启动（如果已在运行，则显示或隐藏其弹出窗口）。

命令：
  format [--format NAME | --all] [--contrast] COLOR...
      以文本输出颜色。COLOR 可以是 Vantle 写出的任何文本（rgb(...)、
      hsl(...)...）、#RGB、#RRGGBB、RRGGBB，或 0 到 1 之间的 sRGB 分量
      r,g,b 或 r,g,b,a。不带 --format 时使用首选格式。--all 以
      LABEL&lt;TAB&gt;TEXT 输出全部九种格式；--contrast 附加对白色和黑色的
      WCAG 对比度。
        vantle format &apos;#FF6B36&apos; --format hsl
        vantle format --all --contrast 1.0,0.42,0.21
  contrast [--json] FOREGROUND BACKGROUND
      输出文本颜色在其背景上的 WCAG 2 对比度、普通文本、大号文本和非文本
      元素的等级，以及 APCA 亮度对比度 Lc；--json 输出一个对象。颜色可以是
      Vantle 写出的任何文本、#RGB，或 `format` 能读取的形式。
        vantle contrast &apos;#888&apos; &apos;#FFF&apos;
  export [--pinned] [--json] [-o FILE]
      以首选格式的文本或 JSON 输出保存的历史记录（或仅固定的颜色）；
      使用 -o 时以原子方式写入 FILE。
        vantle export --pinned --json -o palette.json
  pick [--print [--format NAME]]
      请正在运行的 Vantle 开始拾取（可在桌面的键盘设置中将其绑定到按键）。
      使用 --print 时在本进程中拾取并输出颜色；取消时退出状态为 1。
        vantle pick
        vantle pick --print --format hexLower
  toggle
      请正在运行的 Vantle 显示或隐藏其弹出窗口。
        vantle toggle

选项：
  -h, --help     显示此帮助。
  -v, --version  显示版本。

设置：%1
</translation>
    </message>
    <message>
        <source>Usage: vantle contrast [--json] FOREGROUND BACKGROUND
The WCAG 2 contrast ratio of FOREGROUND (text, an icon, a border) on
BACKGROUND, its grades for normal text (AA 4.5, AAA 7), large text (AA 3,
AAA 4.5) and non-text parts (3), and the APCA lightness contrast Lc
(negative for light on dark). A translucent foreground is drawn on the
background first; the background must be opaque.</source>
        <translation>用法：vantle contrast [--json] FOREGROUND BACKGROUND
FOREGROUND（文本、图标、边框）在 BACKGROUND 上的 WCAG 2 对比度，普通文本
（AA 4.5，AAA 7）、大号文本（AA 3，AAA 4.5）和非文本元素（3）的等级，以及
APCA 亮度对比度 Lc（浅色在深色上时为负）。半透明的前景先绘制在背景上；
背景必须不透明。</translation>
    </message>
    <message>
        <source>Colours: %1</source>
        <translation>颜色：%1</translation>
    </message>
    <message numerus="yes">
        <source>needs a foreground and a background colour, %n given</source>
        <translation>
            <numerusform>需要一个前景色和一个背景色，给出了 %n 个</numerusform>
        </translation>
    </message>
    <message>
        <source>the background must be opaque (its alpha is %1)</source>
        <translation>背景必须不透明（其 alpha 为 %1）</translation>
    </message>
    <message>
        <source>-o needs a file name</source>
        <translation>-o 需要文件名</translation>
    </message>
    <message>
        <source>Usage: vantle export [--pinned] [--json] [-o FILE]
Prints the stored colour history (with --pinned only the pinned colours), newest
first, as text in the preferred format or as JSON; -o writes it to FILE.</source>
        <translation>用法：vantle export [--pinned] [--json] [-o FILE]
按从新到旧的顺序，以首选格式的文本或 JSON 输出保存的颜色历史记录（使用
--pinned 时仅输出固定的颜色）；-o 将其写入 FILE。</translation>
    </message>
    <message>
        <source>unknown argument &quot;%1&quot;</source>
        <translation>未知参数“%1”</translation>
    </message>
    <message>
        <source>the stored colour history cannot be read (%1)</source>
        <translation>无法读取保存的颜色历史记录（%1）</translation>
    </message>
    <message>
        <source>cannot write &quot;%1&quot;: %2</source>
        <translation>无法写入“%1”：%2</translation>
    </message>
    <message>
        <source>--format needs a format name; accepted: %1</source>
        <translation>--format 需要格式名称；可接受：%1</translation>
    </message>
    <message>
        <source>unknown format &quot;%1&quot;; accepted: %2</source>
        <translation>未知格式“%1”；可接受：%2</translation>
    </message>
    <message>
        <source>Usage: vantle format [--format NAME | --all] [--contrast] COLOR...</source>
        <translation>用法：vantle format [--format NAME | --all] [--contrast] COLOR...</translation>
    </message>
    <message>
        <source>Formats: %1</source>
        <translation>格式：%1</translation>
    </message>
    <message>
        <source>--format and --all cannot be used together</source>
        <translation>--format 和 --all 不能同时使用</translation>
    </message>
    <message>
        <source>no colour given; accepted: %1</source>
        <translation>未给出颜色；可接受：%1</translation>
    </message>
    <message>
        <source>Vantle is not running.</source>
        <translation>Vantle 未在运行。</translation>
    </message>
    <message>
        <source>the running Vantle did not answer.</source>
        <translation>正在运行的 Vantle 没有响应。</translation>
    </message>
    <message>
        <source>the running Vantle did not answer (%1).</source>
        <translation>正在运行的 Vantle 没有响应（%1）。</translation>
    </message>
    <message>
        <source>the command &quot;%1&quot; is not available in this build</source>
        <translation>此构建中没有命令“%1”</translation>
    </message>
    <message>
        <source>the desktop part of Vantle cannot be loaded (%1). Reinstalling Vantle puts it back.</source>
        <translation>无法加载 Vantle 的桌面部分（%1）。重新安装 Vantle 即可恢复。</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;</source>
        <translation>未知命令“%1”</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>多余的参数“%1”</translation>
    </message>
    <message>
        <source>Start it with `vantle` (or from your applications menu) first.</source>
        <translation>请先用 `vantle`（或从应用程序菜单）启动它。</translation>
    </message>
</context>
<context>
    <name>Contrast</name>
    <message>
        <source>body text</source>
        <translation>正文</translation>
    </message>
    <message>
        <source>large or bold text</source>
        <translation>大号或粗体文本</translation>
    </message>
    <message>
        <source>headlines</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>non-text only</source>
        <translation>仅限非文本元素</translation>
    </message>
    <message>
        <source>dividers and disabled parts only</source>
        <translation>仅限分隔线和禁用的元素</translation>
    </message>
    <message>
        <source>invisible</source>
        <translation>不可见</translation>
    </message>
</context>
<context>
    <name>ContrastBadge</name>
    <message>
        <source> to </source>
        <extracomment>The colon of a contrast ratio read aloud: &quot;4.5 to 1&quot;; keep the spaces</extracomment>
        <translation> 比 </translation>
    </message>
</context>
<context>
    <name>ContrastComparisonView</name>
    <message>
        <source>Text and Background</source>
        <translation>文本和背景</translation>
    </message>
    <message>
        <source>Pick another color to see how the two read as text and background.</source>
        <translation>再拾取一种颜色，看看两者作为文本和背景的可读性。</translation>
    </message>
    <message>
        <source>Compared color</source>
        <translation>对比的颜色</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>交换</translation>
    </message>
    <message>
        <source>Swap text and background</source>
        <translation>交换文本和背景</translation>
    </message>
    <message>
        <source>Sample text</source>
        <translation>示例文本</translation>
    </message>
    <message>
        <source>Normal text</source>
        <translation>普通文本</translation>
    </message>
    <message>
        <source>Large text</source>
        <translation>大号文本</translation>
    </message>
    <message>
        <source>Non-text</source>
        <translation>非文本</translation>
    </message>
    <message>
        <source>APCA</source>
        <translation>APCA</translation>
    </message>
    <message>
        <source>%1 as text on %2</source>
        <translation>%1 作为 %2 上的文本</translation>
    </message>
    <message>
        <source>Preview: %1 text on %2</source>
        <translation>预览：%2 上的 %1 文本</translation>
    </message>
    <message>
        <source>Now %1 is the text</source>
        <translation>现在 %1 是文本</translation>
    </message>
    <message>
        <source> to 1</source>
        <extracomment>A contrast ratio read aloud: &quot;4.5 to 1&quot;; keep the spaces</extracomment>
        <translation> 比 1</translation>
    </message>
    <message>
        <source>Contrast ratio %1</source>
        <translation>对比度 %1</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1：%2，%3</translation>
    </message>
    <message>
        <source>Lc %1</source>
        <translation>Lc %1</translation>
    </message>
    <message>
        <source>APCA: Lc %1, %2</source>
        <translation>APCA：Lc %1，%2</translation>
    </message>
</context>
<context>
    <name>FileExportDialogs</name>
    <message>
        <source>Export Colors</source>
        <translation>导出颜色</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Plain Text (*.txt)</source>
        <translation>纯文本 (*.txt)</translation>
    </message>
    <message>
        <source>Export Failed</source>
        <translation>导出失败</translation>
    </message>
</context>
<context>
    <name>FormatLine</name>
    <message>
        <source>Copy</source>
        <extracomment>The verb: what pressing the line does, copy its colour text</extracomment>
        <translation>复制</translation>
    </message>
</context>
<context>
    <name>HotkeyManager</name>
    <message>
        <source>Pick a color</source>
        <translation>拾取颜色</translation>
    </message>
    <message>
        <source>Show or hide Vantle</source>
        <translation>显示或隐藏 Vantle</translation>
    </message>
</context>
<context>
    <name>HotkeyRecorderView</name>
    <message>
        <source>Clear the %1 shortcut</source>
        <translation>清除“%1”快捷键</translation>
    </message>
    <message>
        <source>Press shortcut…</source>
        <translation>请按快捷键…</translation>
    </message>
    <message>
        <source>None - click to set</source>
        <translation>无 - 点击设置</translation>
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
        <translation>拾取颜色</translation>
    </message>
    <message>
        <source>Last: #FF6B35</source>
        <translation>上次：#FF6B35</translation>
    </message>
    <message>
        <source>Start Using vantle</source>
        <translation>开始使用 vantle</translation>
    </message>
    <message>
        <source>You&apos;re all set.</source>
        <translation>一切就绪。</translation>
    </message>
    <message>
        <source>Look for the eyedropper icon in your system tray.</source>
        <translation>在系统托盘中找到吸管图标。</translation>
    </message>
    <message>
        <source>Pick any color from anywhere on your screen with one click.</source>
        <translation>只需一次点击，即可拾取屏幕上任意位置的任意颜色。</translation>
    </message>
    <message>
        <source>The color value is copied to your clipboard instantly in your preferred format.</source>
        <translation>颜色值会立即以您的首选格式复制到剪贴板。</translation>
    </message>
    <message>
        <source>Pin your favorite colors and build a palette you can export anytime.</source>
        <translation>固定您喜爱的颜色，组成可随时导出的调色板。</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Welcome to vantle</source>
        <translation>欢迎使用 vantle</translation>
    </message>
</context>
<context>
    <name>OnboardingWindow</name>
    <message>
        <source>Welcome to vantle</source>
        <translation>欢迎使用 vantle</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
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
        <translation>软件更新</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>已是最新版本！</translation>
    </message>
    <message>
        <source>%1 %2 is the latest version.</source>
        <translation>%1 %2 是最新版本。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>A new version of %1 is available!</source>
        <translation>%1 有新版本可用！</translation>
    </message>
    <message>
        <source>%1 %2 is now available — you have %3. Would you like to download it now?</source>
        <translation>%1 %2 现已推出，您的版本是 %3。要现在下载吗？</translation>
    </message>
    <message>
        <source>Release Notes:</source>
        <translation>发行说明：</translation>
    </message>
    <message>
        <source>Read the release notes</source>
        <translation>阅读发行说明</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>跳过此版本</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>稍后提醒我</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>Downloading %1…</source>
        <translation>正在下载 %1…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Update Failed</source>
        <translation>更新失败</translation>
    </message>
    <message>
        <source>%1 was downloaded in the background.</source>
        <translation>%1 已在后台下载。</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 已下载。</translation>
    </message>
    <message>
        <source>The file is saved as %1. Install it the way you installed this version.</source>
        <translation>文件已保存为 %1。请按安装此版本的方式安装它。</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>在文件夹中显示</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Vantle Settings</source>
        <translation>Vantle 设置</translation>
    </message>
</context>
<context>
    <name>RenameColorSheet</name>
    <message>
        <source>Rename Color</source>
        <translation>重命名颜色</translation>
    </message>
    <message>
        <source>Color name (optional)</source>
        <translation>颜色名称（可选）</translation>
    </message>
    <message>
        <source>Color name</source>
        <translation>颜色名称</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
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
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>Pick any color from anywhere on your screen with one click.</source>
        <translation>只需一次点击，即可拾取屏幕上任意位置的任意颜色。</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>检查更新…</translation>
    </message>
    <message>
        <source>Automatically download updates</source>
        <translation>自动下载更新</translation>
    </message>
    <message>
        <source>Vantle Website</source>
        <translation>Vantle 网站</translation>
    </message>
    <message>
        <source>%1 Website</source>
        <translation>%1 网站</translation>
    </message>
    <message>
        <source>Made by %1.</source>
        <translation>由 %1 制作。</translation>
    </message>
    <message>
        <source>Default format</source>
        <translation>默认格式</translation>
    </message>
    <message>
        <source>Color Format</source>
        <translation>颜色格式</translation>
    </message>
    <message>
        <source>Pick color</source>
        <translation>拾取颜色</translation>
    </message>
    <message>
        <source>Toggle popup</source>
        <translation>显示/隐藏弹出窗口</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>On GNOME these shortcuts live among the custom shortcuts in Settings › Keyboard.</source>
        <translation>在 GNOME 中，这些快捷键位于“设置 › 键盘”的自定义快捷键中。</translation>
    </message>
    <message>
        <source>Show colored dot for last picked color</source>
        <translation>显示上次拾取颜色的圆点</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>托盘图标</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>登录时启动</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>History limit</source>
        <translation>历史记录上限</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>清除历史记录</translation>
    </message>
    <message>
        <source>Pinned colors will be preserved.</source>
        <translation>固定的颜色将会保留。</translation>
    </message>
    <message>
        <source>Data</source>
        <extracomment>Heading of the settings about the stored history</extracomment>
        <translation>数据</translation>
    </message>
    <message>
        <source>Reduce History</source>
        <translation>缩减历史记录</translation>
    </message>
    <message>
        <source>This will remove the oldest 1 color.</source>
        <translation>这将移除最旧的 1 种颜色。</translation>
    </message>
    <message numerus="yes">
        <source>This will remove the oldest %n colors.</source>
        <translation>
            <numerusform>这将移除最旧的 %n 种颜色。</numerusform>
        </translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation>了解更多</translation>
    </message>
    <message>
        <source>No other %1 applications are listed in this build.</source>
        <translation>此构建未列出 %1 的其他应用程序。</translation>
    </message>
    <message>
        <source>All %1 applications</source>
        <translation>%1 的全部应用程序</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>More %1</source>
        <extracomment>The tab of the maker&apos;s other applications; %1 is the maker&apos;s name</extracomment>
        <translation>%1 的更多应用</translation>
    </message>
</context>
<context>
    <name>UpdaterController</name>
    <message>
        <source>This app</source>
        <translation>此应用程序</translation>
    </message>
</context>
</TS>
