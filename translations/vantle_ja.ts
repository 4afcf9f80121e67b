<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>AppDelegate</name>
    <message>
        <source>Pick Color</source>
        <translation>色を取得</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Quit vantle</source>
        <translation>vantle を終了</translation>
    </message>
</context>
<context>
    <name>AppcastUpdater</name>
    <message>
        <source>This copy of %1 has no key to verify updates with, so version %2 was not downloaded. Please get it from the %1 website.</source>
        <translation>この %1 には更新を検証する鍵がないため、バージョン %2 はダウンロードされませんでした。%1 のウェブサイトから入手してください。</translation>
    </message>
    <message>
        <source>The update could not be saved in %1.</source>
        <translation>更新を %1 に保存できませんでした。</translation>
    </message>
    <message>
        <source>The update could not be saved in %1, so the partial file was deleted.</source>
        <translation>更新を %1 に保存できなかったため、不完全なファイルを削除しました。</translation>
    </message>
    <message>
        <source>The update could not be downloaded, so the partial file was deleted.</source>
        <translation>更新をダウンロードできなかったため、不完全なファイルを削除しました。</translation>
    </message>
    <message>
        <source>This copy of %1 has no usable key to verify updates with, so the downloaded file was deleted. Please get the new version from the %1 website.</source>
        <translation>この %1 には更新の検証に使える鍵がないため、ダウンロードしたファイルを削除しました。新しいバージョンは %1 のウェブサイトから入手してください。</translation>
    </message>
    <message>
        <source>The downloaded file does not have the size the update feed announced, so it was deleted.</source>
        <translation>ダウンロードしたファイルのサイズが更新フィードの告知と異なるため、削除しました。</translation>
    </message>
    <message>
        <source>The downloaded file does not carry a valid signature from the maker of %1, so it was deleted.</source>
        <translation>ダウンロードしたファイルに %1 の開発元の有効な署名がないため、削除しました。</translation>
    </message>
    <message>
        <source>The downloaded file could not be read back for checking, so it was deleted.</source>
        <translation>ダウンロードしたファイルを検証のために読み込めなかったため、削除しました。</translation>
    </message>
</context>
<context>
    <name>ColorDetailView</name>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Contrast Ratios</source>
        <translation>コントラスト比</translation>
    </message>
    <message>
        <source>vs White</source>
        <translation>白に対して</translation>
    </message>
    <message>
        <source>vs Black</source>
        <translation>黒に対して</translation>
    </message>
    <message>
        <source>Color details</source>
        <translation>色の詳細</translation>
    </message>
</context>
<context>
    <name>ColorFormat</name>
    <message>
        <source>Hex</source>
        <extracomment>The name of a colour format: hexadecimal digits, as in #FF6B36</extracomment>
        <translation>16 進数</translation>
    </message>
    <message>
        <source>Hex (lowercase)</source>
        <extracomment>The name of a colour format: hexadecimal digits in lower case, as in #ff6b36</extracomment>
        <translation>16 進数 (小文字)</translation>
    </message>
    <message>
        <source>RGB (decimal)</source>
        <extracomment>The name of a colour format: red, green and blue as whole numbers 0 to 255, as in 255, 107, 54</extracomment>
        <translation>RGB (10 進数)</translation>
    </message>
</context>
<context>
    <name>ColorListView</name>
    <message>
        <source>colors</source>
        <extracomment>Spoken after the number of colours in the history (&quot;3 colors&quot;)</extracomment>
        <translation>色</translation>
    </message>
    <message>
        <source>Pick Color</source>
        <translation>色を取得</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Export colors</source>
        <translation>色をエクスポート</translation>
    </message>
    <message>
        <source>Export Pinned as Text</source>
        <translation>ピン留めした色をテキストでエクスポート</translation>
    </message>
    <message>
        <source>Export Pinned as JSON</source>
        <translation>ピン留めした色を JSON でエクスポート</translation>
    </message>
    <message>
        <source>Export All as Text</source>
        <translation>すべてテキストでエクスポート</translation>
    </message>
    <message>
        <source>Export All as JSON</source>
        <translation>すべて JSON でエクスポート</translation>
    </message>
    <message>
        <source>Quit vantle</source>
        <translation>vantle を終了</translation>
    </message>
    <message>
        <source>No colors yet</source>
        <translation>まだ色がありません</translation>
    </message>
    <message>
        <source>Click Pick Color to get started</source>
        <translation>「色を取得」をクリックして始めましょう</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>色</translation>
    </message>
    <message>
        <source>PINNED</source>
        <extracomment>Heading of the list of pinned colours, in capitals where the language has them</extracomment>
        <translation>ピン留め</translation>
    </message>
    <message>
        <source>RECENT</source>
        <translation>最近</translation>
    </message>
    <message>
        <source>Picking…</source>
        <translation>取得中…</translation>
    </message>
</context>
<context>
    <name>ColorListViewModel</name>
    <message>
        <source>Copied %1</source>
        <extracomment>The confirmation after a copy; %1 is the colour text put on the clipboard</extracomment>
        <translation>%1 をコピーしました</translation>
    </message>
    <message>
        <source>Not copied: the clipboard is not available</source>
        <translation>コピーされませんでした: クリップボードを利用できません</translation>
    </message>
    <message>
        <source>“%1” could not be written: %2</source>
        <translation>「%1」を書き込めませんでした: %2</translation>
    </message>
</context>
<context>
    <name>ColorRowView</name>
    <message>
        <source>pinned</source>
        <extracomment>Spoken state of a colour kept in the palette</extracomment>
        <translation>ピン留め済み</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Unpin</source>
        <extracomment>The verbs of the menu: keep the colour in the palette, or take it out (Unpin)</extracomment>
        <translation>ピン留めを外す</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>ピン留め</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>名前を変更…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>不明なオプション「%1」</translation>
    </message>
    <message>
        <source>cannot read the colour &quot;%1&quot;; accepted: %2</source>
        <translation>色「%1」を読み取れません。使用できる形式: %2</translation>
    </message>
    <message>
        <source>any text Vantle writes (#RRGGBB, rgb(), rgba(), hsl(), hsb(), R, G, B, Color(), UIColor()), #RGB, RRGGBB, or r,g,b[,a] with components such as 1.0,0.42,0.21</source>
        <translation>Vantle が書き出すすべてのテキスト (#RRGGBB、rgb()、rgba()、hsl()、hsb()、R, G, B、Color()、UIColor())、#RGB、RRGGBB、または 1.0,0.42,0.21 のような成分の r,g,b[,a]</translation>
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
        <translation>使い方: vantle [コマンド] [オプション]

コマンドなしでは、Vantle はシステムトレイで起動します (すでに起動している
場合は、ポップアップを表示または非表示にします)。

コマンド:
  format [--format NAME | --all] [--contrast] COLOR...
      色をテキストで出力します。COLOR は Vantle が書き出すすべての
      テキスト (rgb(...)、hsl(...)...)、#RGB、#RRGGBB、RRGGBB、または
      0 から 1 の sRGB 成分 r,g,b か r,g,b,a です。--format がなければ
      優先する形式を使います。--all は 9 つの形式すべてを LABEL&lt;TAB&gt;TEXT
      で出力し、--contrast は白と黒に対する WCAG コントラストを加えます。
        vantle format &apos;#FF6B36&apos; --format hsl
        vantle format --all --contrast 1.0,0.42,0.21
  contrast [--json] FOREGROUND BACKGROUND
      背景上の文字色の WCAG 2 コントラスト比、通常のテキスト・大きな
      テキスト・テキスト以外の要素の評価、APCA の明度コントラスト Lc を
      出力します。--json は 1 つのオブジェクトを出力します。色は Vantle
      が書き出すすべてのテキスト、#RGB、または `format` が読む形式です。
        vantle contrast &apos;#888&apos; &apos;#FFF&apos;
  export [--pinned] [--json] [-o FILE]
      保存された履歴 (またはピン留めした色のみ) を優先する形式のテキスト
      か JSON で出力します。-o を付けると FILE にアトミックに書き込みます。
        vantle export --pinned --json -o palette.json
  pick [--print [--format NAME]]
      起動中の Vantle に色の取得を開始させます (デスクトップのキーボード
      設定でキーに割り当ててください)。--print を付けるとこのプロセスで
      取得して色を出力します。キャンセル時の終了ステータスは 1 です。
        vantle pick
        vantle pick --print --format hexLower
  toggle
      起動中の Vantle のポップアップを表示または非表示にします。
        vantle toggle

オプション:
  -h, --help     このヘルプを表示します。
  -v, --version  バージョンを表示します。

設定: %1
</translation>
    </message>
    <message>
        <source>Usage: vantle contrast [--json] FOREGROUND BACKGROUND
The WCAG 2 contrast ratio of FOREGROUND (text, an icon, a border) on
BACKGROUND, its grades for normal text (AA 4.5, AAA 7), large text (AA 3,
AAA 4.5) and non-text parts (3), and the APCA lightness contrast Lc
(negative for light on dark). A translucent foreground is drawn on the
background first; the background must be opaque.</source>
        <translation>使い方: vantle contrast [--json] FOREGROUND BACKGROUND
BACKGROUND 上の FOREGROUND (テキスト、アイコン、枠線) の WCAG 2 コントラスト
比、通常のテキスト (AA 4.5、AAA 7)、大きなテキスト (AA 3、AAA 4.5)、テキスト
以外の要素 (3) の評価、APCA の明度コントラスト Lc (暗い背景に明るい色では
負) を出力します。半透明の前景はまず背景の上に描かれます。背景は不透明で
なければなりません。</translation>
    </message>
    <message>
        <source>Colours: %1</source>
        <translation>色: %1</translation>
    </message>
    <message numerus="yes">
        <source>needs a foreground and a background colour, %n given</source>
        <translation>
            <numerusform>前景色と背景色が必要ですが、%n 個指定されました</numerusform>
        </translation>
    </message>
    <message>
        <source>the background must be opaque (its alpha is %1)</source>
        <translation>背景は不透明でなければなりません (アルファ値: %1)</translation>
    </message>
    <message>
        <source>-o needs a file name</source>
        <translation>-o にはファイル名が必要です</translation>
    </message>
    <message>
        <source>Usage: vantle export [--pinned] [--json] [-o FILE]
Prints the stored colour history (with --pinned only the pinned colours), newest
first, as text in the preferred format or as JSON; -o writes it to FILE.</source>
        <translation>使い方: vantle export [--pinned] [--json] [-o FILE]
保存された色の履歴 (--pinned ではピン留めした色のみ) を新しい順に、優先する
形式のテキストまたは JSON で出力します。-o は FILE に書き込みます。</translation>
    </message>
    <message>
        <source>unknown argument &quot;%1&quot;</source>
        <translation>不明な引数「%1」</translation>
    </message>
    <message>
        <source>the stored colour history cannot be read (%1)</source>
        <translation>保存された色の履歴を読み込めません (%1)</translation>
    </message>
    <message>
        <source>cannot write &quot;%1&quot;: %2</source>
        <translation>「%1」に書き込めません: %2</translation>
    </message>
    <message>
        <source>--format needs a format name; accepted: %1</source>
        <translation>--format には形式名が必要です。使用できる形式: %1</translation>
    </message>
    <message>
        <source>unknown format &quot;%1&quot;; accepted: %2</source>
        <translation>不明な形式「%1」。使用できる形式: %2</translation>
    </message>
    <message>
        <source>Usage: vantle format [--format NAME | --all] [--contrast] COLOR...</source>
        <translation>使い方: vantle format [--format NAME | --all] [--contrast] COLOR...</translation>
    </message>
    <message>
        <source>Formats: %1</source>
        <translation>形式: %1</translation>
    </message>
    <message>
        <source>--format and --all cannot be used together</source>
        <translation>--format と --all は同時に使えません</translation>
    </message>
    <message>
        <source>no colour given; accepted: %1</source>
        <translation>色が指定されていません。使用できる形式: %1</translation>
    </message>
    <message>
        <source>Vantle is not running.</source>
        <translation>Vantle は起動していません。</translation>
    </message>
    <message>
        <source>the running Vantle did not answer.</source>
        <translation>起動中の Vantle が応答しませんでした。</translation>
    </message>
    <message>
        <source>the running Vantle did not answer (%1).</source>
        <translation>起動中の Vantle が応答しませんでした (%1)。</translation>
    </message>
    <message>
        <source>the command &quot;%1&quot; is not available in this build</source>
        <translation>このビルドではコマンド「%1」を使えません</translation>
    </message>
    <message>
        <source>the desktop part of Vantle cannot be loaded (%1). Reinstalling Vantle puts it back.</source>
        <translation>Vantle のデスクトップ部分を読み込めません (%1)。Vantle を再インストールすると元に戻ります。</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;</source>
        <translation>不明なコマンド「%1」</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>予期しない引数「%1」</translation>
    </message>
    <message>
        <source>Start it with `vantle` (or from your applications menu) first.</source>
        <translation>先に `vantle` (またはアプリケーションメニュー) から起動してください。</translation>
    </message>
</context>
<context>
    <name>Contrast</name>
    <message>
        <source>body text</source>
        <translation>本文</translation>
    </message>
    <message>
        <source>large or bold text</source>
        <translation>大きな文字または太字</translation>
    </message>
    <message>
        <source>headlines</source>
        <translation>見出し</translation>
    </message>
    <message>
        <source>non-text only</source>
        <translation>テキスト以外のみ</translation>
    </message>
    <message>
        <source>dividers and disabled parts only</source>
        <translation>区切り線と無効な要素のみ</translation>
    </message>
    <message>
        <source>invisible</source>
        <translation>見えない</translation>
    </message>
</context>
<context>
    <name>ContrastBadge</name>
    <message>
        <source> to </source>
        <extracomment>The colon of a contrast ratio read aloud: &quot;4.5 to 1&quot;; keep the spaces</extracomment>
        <translation> 対 </translation>
    </message>
</context>
<context>
    <name>ContrastComparisonView</name>
    <message>
        <source>Text and Background</source>
        <translation>テキストと背景</translation>
    </message>
    <message>
        <source>Pick another color to see how the two read as text and background.</source>
        <translation>もう 1 色取得すると、2 色をテキストと背景にしたときの読みやすさがわかります。</translation>
    </message>
    <message>
        <source>Compared color</source>
        <translation>比較する色</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>入れ替え</translation>
    </message>
    <message>
        <source>Swap text and background</source>
        <translation>テキストと背景を入れ替え</translation>
    </message>
    <message>
        <source>Sample text</source>
        <translation>サンプルテキスト</translation>
    </message>
    <message>
        <source>Normal text</source>
        <translation>通常のテキスト</translation>
    </message>
    <message>
        <source>Large text</source>
        <translation>大きなテキスト</translation>
    </message>
    <message>
        <source>Non-text</source>
        <translation>テキスト以外</translation>
    </message>
    <message>
        <source>APCA</source>
        <translation>APCA</translation>
    </message>
    <message>
        <source>%1 as text on %2</source>
        <translation>%2 上のテキストとしての %1</translation>
    </message>
    <message>
        <source>Preview: %1 text on %2</source>
        <translation>プレビュー: %2 上の %1 のテキスト</translation>
    </message>
    <message>
        <source>Now %1 is the text</source>
        <translation>%1 がテキストになりました</translation>
    </message>
    <message>
        <source> to 1</source>
        <extracomment>A contrast ratio read aloud: &quot;4.5 to 1&quot;; keep the spaces</extracomment>
        <translation> 対 1</translation>
    </message>
    <message>
        <source>Contrast ratio %1</source>
        <translation>コントラスト比 %1</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2、%3</translation>
    </message>
    <message>
        <source>Lc %1</source>
        <translation>Lc %1</translation>
    </message>
    <message>
        <source>APCA: Lc %1, %2</source>
        <translation>APCA: Lc %1、%2</translation>
    </message>
</context>
<context>
    <name>FileExportDialogs</name>
    <message>
        <source>Export Colors</source>
        <translation>色をエクスポート</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Plain Text (*.txt)</source>
        <translation>プレーンテキスト (*.txt)</translation>
    </message>
    <message>
        <source>Export Failed</source>
        <translation>エクスポートに失敗しました</translation>
    </message>
</context>
<context>
    <name>FormatLine</name>
    <message>
        <source>Copy</source>
        <extracomment>The verb: what pressing the line does, copy its colour text</extracomment>
        <translation>コピー</translation>
    </message>
</context>
<context>
    <name>HotkeyManager</name>
    <message>
        <source>Pick a color</source>
        <translation>色を取得</translation>
    </message>
    <message>
        <source>Show or hide Vantle</source>
        <translation>Vantle を表示/非表示</translation>
    </message>
</context>
<context>
    <name>HotkeyRecorderView</name>
    <message>
        <source>Clear the %1 shortcut</source>
        <translation>「%1」のショートカットを消去</translation>
    </message>
    <message>
        <source>Press shortcut…</source>
        <translation>ショートカットを押してください…</translation>
    </message>
    <message>
        <source>None - click to set</source>
        <translation>なし - クリックして設定</translation>
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
        <translation>色を取得</translation>
    </message>
    <message>
        <source>Last: #FF6B35</source>
        <translation>前回: #FF6B35</translation>
    </message>
    <message>
        <source>Start Using vantle</source>
        <translation>vantle を使い始める</translation>
    </message>
    <message>
        <source>You&apos;re all set.</source>
        <translation>準備が整いました。</translation>
    </message>
    <message>
        <source>Look for the eyedropper icon in your system tray.</source>
        <translation>システムトレイのスポイトのアイコンを探してください。</translation>
    </message>
    <message>
        <source>Pick any color from anywhere on your screen with one click.</source>
        <translation>画面上のどこからでも、ワンクリックで色を取得できます。</translation>
    </message>
    <message>
        <source>The color value is copied to your clipboard instantly in your preferred format.</source>
        <translation>色の値は優先する形式ですぐにクリップボードにコピーされます。</translation>
    </message>
    <message>
        <source>Pin your favorite colors and build a palette you can export anytime.</source>
        <translation>お気に入りの色をピン留めして、いつでもエクスポートできるパレットを作れます。</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>始める</translation>
    </message>
    <message>
        <source>Welcome to vantle</source>
        <translation>vantle へようこそ</translation>
    </message>
</context>
<context>
    <name>OnboardingWindow</name>
    <message>
        <source>Welcome to vantle</source>
        <translation>vantle へようこそ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
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
        <translation>ソフトウェアの更新</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>最新の状態です！</translation>
    </message>
    <message>
        <source>%1 %2 is the latest version.</source>
        <translation>%1 %2 は最新バージョンです。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>A new version of %1 is available!</source>
        <translation>%1 の新しいバージョンがあります！</translation>
    </message>
    <message>
        <source>%1 %2 is now available — you have %3. Would you like to download it now?</source>
        <translation>%1 %2 が利用可能です (現在のバージョン: %3)。今すぐダウンロードしますか？</translation>
    </message>
    <message>
        <source>Release Notes:</source>
        <translation>リリースノート:</translation>
    </message>
    <message>
        <source>Read the release notes</source>
        <translation>リリースノートを読む</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>このバージョンをスキップ</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>後で通知</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>Downloading %1…</source>
        <translation>%1 をダウンロード中…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Update Failed</source>
        <translation>更新に失敗しました</translation>
    </message>
    <message>
        <source>%1 was downloaded in the background.</source>
        <translation>%1 をバックグラウンドでダウンロードしました。</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 をダウンロードしました。</translation>
    </message>
    <message>
        <source>The file is saved as %1. Install it the way you installed this version.</source>
        <translation>ファイルは %1 として保存されました。このバージョンと同じ方法でインストールしてください。</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>フォルダーに表示</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Vantle Settings</source>
        <translation>Vantle の設定</translation>
    </message>
</context>
<context>
    <name>RenameColorSheet</name>
    <message>
        <source>Rename Color</source>
        <translation>色の名前を変更</translation>
    </message>
    <message>
        <source>Color name (optional)</source>
        <translation>色の名前 (任意)</translation>
    </message>
    <message>
        <source>Color name</source>
        <translation>色の名前</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
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
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>Pick any color from anywhere on your screen with one click.</source>
        <translation>画面上のどこからでも、ワンクリックで色を取得できます。</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>Automatically download updates</source>
        <translation>アップデートを自動的にダウンロード</translation>
    </message>
    <message>
        <source>Vantle Website</source>
        <translation>Vantle のウェブサイト</translation>
    </message>
    <message>
        <source>%1 Website</source>
        <translation>%1 のウェブサイト</translation>
    </message>
    <message>
        <source>Made by %1.</source>
        <translation>開発: %1</translation>
    </message>
    <message>
        <source>Default format</source>
        <translation>デフォルトの形式</translation>
    </message>
    <message>
        <source>Color Format</source>
        <translation>色の形式</translation>
    </message>
    <message>
        <source>Pick color</source>
        <translation>色を取得</translation>
    </message>
    <message>
        <source>Toggle popup</source>
        <translation>ポップアップの表示切り替え</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>On GNOME these shortcuts live among the custom shortcuts in Settings › Keyboard.</source>
        <translation>GNOME では、これらのショートカットは「設定 › キーボード」のカスタムショートカットにあります。</translation>
    </message>
    <message>
        <source>Show colored dot for last picked color</source>
        <translation>最後に取得した色のドットを表示</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>トレイアイコン</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>ログイン時に起動</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>History limit</source>
        <translation>履歴の上限</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>履歴を消去</translation>
    </message>
    <message>
        <source>Pinned colors will be preserved.</source>
        <translation>ピン留めした色は残ります。</translation>
    </message>
    <message>
        <source>Data</source>
        <extracomment>Heading of the settings about the stored history</extracomment>
        <translation>データ</translation>
    </message>
    <message>
        <source>Reduce History</source>
        <translation>履歴を減らす</translation>
    </message>
    <message>
        <source>This will remove the oldest 1 color.</source>
        <translation>最も古い 1 色が削除されます。</translation>
    </message>
    <message numerus="yes">
        <source>This will remove the oldest %n colors.</source>
        <translation>
            <numerusform>最も古い %n 色が削除されます。</numerusform>
        </translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>No other %1 applications are listed in this build.</source>
        <translation>このビルドには %1 のほかのアプリケーションは掲載されていません。</translation>
    </message>
    <message>
        <source>All %1 applications</source>
        <translation>%1 のすべてのアプリケーション</translation>
    </message>
    <message>
        <source>About</source>
        <translation>このアプリについて</translation>
    </message>
    <message>
        <source>More %1</source>
        <extracomment>The tab of the maker&apos;s other applications; %1 is the maker&apos;s name</extracomment>
        <translation>%1 のほかのアプリ</translation>
    </message>
</context>
<context>
    <name>UpdaterController</name>
    <message>
        <source>This app</source>
        <translation>このアプリ</translation>
    </message>
</context>
</TS>
