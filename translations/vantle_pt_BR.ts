<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>AppDelegate</name>
    <message>
        <source>Pick Color</source>
        <translation>Capturar cor</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Configurações…</translation>
    </message>
    <message>
        <source>Quit vantle</source>
        <translation>Sair do vantle</translation>
    </message>
</context>
<context>
    <name>AppcastUpdater</name>
    <message>
        <source>This copy of %1 has no key to verify updates with, so version %2 was not downloaded. Please get it from the %1 website.</source>
        <translation>Esta cópia do %1 não tem chave para verificar atualizações, por isso a versão %2 não foi baixada. Obtenha-a no site do %1.</translation>
    </message>
    <message>
        <source>The update could not be saved in %1.</source>
        <translation>Não foi possível salvar a atualização em %1.</translation>
    </message>
    <message>
        <source>The update could not be saved in %1, so the partial file was deleted.</source>
        <translation>Não foi possível salvar a atualização em %1, por isso o arquivo parcial foi excluído.</translation>
    </message>
    <message>
        <source>The update could not be downloaded, so the partial file was deleted.</source>
        <translation>Não foi possível baixar a atualização, por isso o arquivo parcial foi excluído.</translation>
    </message>
    <message>
        <source>This copy of %1 has no usable key to verify updates with, so the downloaded file was deleted. Please get the new version from the %1 website.</source>
        <translation>Esta cópia do %1 não tem chave válida para verificar atualizações, por isso o arquivo baixado foi excluído. Obtenha a nova versão no site do %1.</translation>
    </message>
    <message>
        <source>The downloaded file does not have the size the update feed announced, so it was deleted.</source>
        <translation>O arquivo baixado não tem o tamanho anunciado pelo feed de atualizações, por isso foi excluído.</translation>
    </message>
    <message>
        <source>The downloaded file does not carry a valid signature from the maker of %1, so it was deleted.</source>
        <translation>O arquivo baixado não tem uma assinatura válida do fabricante do %1, por isso foi excluído.</translation>
    </message>
    <message>
        <source>The downloaded file could not be read back for checking, so it was deleted.</source>
        <translation>Não foi possível reler o arquivo baixado para verificá-lo, por isso foi excluído.</translation>
    </message>
</context>
<context>
    <name>ColorDetailView</name>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Contrast Ratios</source>
        <translation>Taxas de contraste</translation>
    </message>
    <message>
        <source>vs White</source>
        <translation>sobre branco</translation>
    </message>
    <message>
        <source>vs Black</source>
        <translation>sobre preto</translation>
    </message>
    <message>
        <source>Color details</source>
        <translation>Detalhes da cor</translation>
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
        <translation>cores</translation>
    </message>
    <message>
        <source>Pick Color</source>
        <translation>Capturar cor</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Export colors</source>
        <translation>Exportar cores</translation>
    </message>
    <message>
        <source>Export Pinned as Text</source>
        <translation>Exportar fixadas como texto</translation>
    </message>
    <message>
        <source>Export Pinned as JSON</source>
        <translation>Exportar fixadas como JSON</translation>
    </message>
    <message>
        <source>Export All as Text</source>
        <translation>Exportar todas como texto</translation>
    </message>
    <message>
        <source>Export All as JSON</source>
        <translation>Exportar todas como JSON</translation>
    </message>
    <message>
        <source>Quit vantle</source>
        <translation>Sair do vantle</translation>
    </message>
    <message>
        <source>No colors yet</source>
        <translation>Nenhuma cor ainda</translation>
    </message>
    <message>
        <source>Click Pick Color to get started</source>
        <translation>Clique em “Capturar cor” para começar</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Cores</translation>
    </message>
    <message>
        <source>PINNED</source>
        <extracomment>Heading of the list of pinned colours, in capitals where the language has them</extracomment>
        <translation>FIXADAS</translation>
    </message>
    <message>
        <source>RECENT</source>
        <translation>RECENTES</translation>
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
        <translation>Não copiado: a área de transferência não está disponível</translation>
    </message>
    <message>
        <source>“%1” could not be written: %2</source>
        <translation>Não foi possível gravar “%1”: %2</translation>
    </message>
</context>
<context>
    <name>ColorRowView</name>
    <message>
        <source>pinned</source>
        <extracomment>Spoken state of a colour kept in the palette</extracomment>
        <translation>fixada</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Unpin</source>
        <extracomment>The verbs of the menu: keep the colour in the palette, or take it out (Unpin)</extracomment>
        <translation>Desafixar</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Fixar</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Renomear…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>opção desconhecida “%1”</translation>
    </message>
    <message>
        <source>cannot read the colour &quot;%1&quot;; accepted: %2</source>
        <translation>não é possível ler a cor “%1”; aceito: %2</translation>
    </message>
    <message>
        <source>any text Vantle writes (#RRGGBB, rgb(), rgba(), hsl(), hsb(), R, G, B, Color(), UIColor()), #RGB, RRGGBB, or r,g,b[,a] with components such as 1.0,0.42,0.21</source>
        <translation>qualquer texto que o Vantle escreve (#RRGGBB, rgb(), rgba(), hsl(), hsb(), R, G, B, Color(), UIColor()), #RGB, RRGGBB, ou r,g,b[,a] com componentes como 1.0,0.42,0.21</translation>
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
        <translation>Uso: vantle [COMANDO] [OPÇÕES]

Sem comando, o Vantle inicia na bandeja do sistema (ou, se já estiver em
execução, mostra ou oculta sua janela).

Comandos:
  format [--format NAME | --all] [--contrast] COLOR...
      Exibe cores como texto. COLOR é qualquer texto que o Vantle escreve
      (rgb(...), hsl(...)...), #RGB, #RRGGBB, RRGGBB, ou componentes sRGB
      r,g,b ou r,g,b,a entre 0 e 1. Sem --format, usa o formato preferido.
      --all exibe os nove formatos como LABEL&lt;TAB&gt;TEXT; --contrast adiciona o
      contraste WCAG em relação ao branco e ao preto.
        vantle format &apos;#FF6B36&apos; --format hsl
        vantle format --all --contrast 1.0,0.42,0.21
  contrast [--json] FOREGROUND BACKGROUND
      Exibe a taxa de contraste WCAG 2 de uma cor de texto sobre seu fundo,
      seus níveis para texto normal, texto grande e elementos não textuais, e
      o contraste de luminosidade APCA Lc; --json exibe um objeto. Uma cor é
      qualquer texto que o Vantle escreve, #RGB, ou as formas que `format` lê.
        vantle contrast &apos;#888&apos; &apos;#FFF&apos;
  export [--pinned] [--json] [-o FILE]
      Exibe o histórico salvo (ou só as cores fixadas) como texto no formato
      preferido, ou como JSON; com -o, grava-o de forma atômica em FILE.
        vantle export --pinned --json -o palette.json
  pick [--print [--format NAME]]
      Pede ao Vantle em execução que inicie uma captura (associe isto a uma
      tecla nas configurações de teclado do seu ambiente). Com --print, captura
      neste processo e exibe a cor; status de saída 1 se cancelado.
        vantle pick
        vantle pick --print --format hexLower
  toggle
      Pede ao Vantle em execução que mostre ou oculte sua janela.
        vantle toggle

Opções:
  -h, --help     Mostra esta ajuda.
  -v, --version  Mostra a versão.

Configurações:
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
        <translation>Uso: vantle contrast [--json] FOREGROUND BACKGROUND
A taxa de contraste WCAG 2 de FOREGROUND (texto, um ícone, uma borda) sobre
BACKGROUND, seus níveis para texto normal (AA 4.5, AAA 7), texto grande
(AA 3, AAA 4.5) e elementos não textuais (3), e o contraste de luminosidade
APCA Lc (negativo para claro sobre escuro). Um primeiro plano translúcido é
desenhado antes sobre o fundo; o fundo deve ser opaco.</translation>
    </message>
    <message>
        <source>Colours: %1</source>
        <translation>Cores: %1</translation>
    </message>
    <message numerus="yes">
        <source>needs a foreground and a background colour, %n given</source>
        <translation>
            <numerusform>são necessárias uma cor de primeiro plano e uma de fundo; %n informada</numerusform>
            <numerusform>são necessárias uma cor de primeiro plano e uma de fundo; %n informadas</numerusform>
        </translation>
    </message>
    <message>
        <source>the background must be opaque (its alpha is %1)</source>
        <translation>o fundo deve ser opaco (seu alfa é %1)</translation>
    </message>
    <message>
        <source>-o needs a file name</source>
        <translation>-o precisa de um nome de arquivo</translation>
    </message>
    <message>
        <source>Usage: vantle export [--pinned] [--json] [-o FILE]
Prints the stored colour history (with --pinned only the pinned colours), newest
first, as text in the preferred format or as JSON; -o writes it to FILE.</source>
        <translation>Uso: vantle export [--pinned] [--json] [-o FILE]
Exibe o histórico de cores salvo (com --pinned, só as cores fixadas), da mais
recente para a mais antiga, como texto no formato preferido ou como JSON; -o
o grava em FILE.</translation>
    </message>
    <message>
        <source>unknown argument &quot;%1&quot;</source>
        <translation>argumento desconhecido “%1”</translation>
    </message>
    <message>
        <source>the stored colour history cannot be read (%1)</source>
        <translation>não é possível ler o histórico de cores salvo (%1)</translation>
    </message>
    <message>
        <source>cannot write &quot;%1&quot;: %2</source>
        <translation>não é possível gravar “%1”: %2</translation>
    </message>
    <message>
        <source>--format needs a format name; accepted: %1</source>
        <translation>--format precisa de um nome de formato; aceito: %1</translation>
    </message>
    <message>
        <source>unknown format &quot;%1&quot;; accepted: %2</source>
        <translation>formato desconhecido “%1”; aceito: %2</translation>
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
        <translation>--format e --all não podem ser usados juntos</translation>
    </message>
    <message>
        <source>no colour given; accepted: %1</source>
        <translation>nenhuma cor informada; aceito: %1</translation>
    </message>
    <message>
        <source>Vantle is not running.</source>
        <translation>O Vantle não está em execução.</translation>
    </message>
    <message>
        <source>the running Vantle did not answer.</source>
        <translation>o Vantle em execução não respondeu.</translation>
    </message>
    <message>
        <source>the running Vantle did not answer (%1).</source>
        <translation>o Vantle em execução não respondeu (%1).</translation>
    </message>
    <message>
        <source>the command &quot;%1&quot; is not available in this build</source>
        <translation>o comando “%1” não está disponível nesta compilação</translation>
    </message>
    <message>
        <source>the desktop part of Vantle cannot be loaded (%1). Reinstalling Vantle puts it back.</source>
        <translation>não é possível carregar a parte gráfica do Vantle (%1). Reinstalar o Vantle a restaura.</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;</source>
        <translation>comando desconhecido “%1”</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>argumento inesperado “%1”</translation>
    </message>
    <message>
        <source>Start it with `vantle` (or from your applications menu) first.</source>
        <translation>Inicie-o antes com `vantle` (ou pelo menu de aplicativos).</translation>
    </message>
</context>
<context>
    <name>Contrast</name>
    <message>
        <source>body text</source>
        <translation>texto corrido</translation>
    </message>
    <message>
        <source>large or bold text</source>
        <translation>texto grande ou em negrito</translation>
    </message>
    <message>
        <source>headlines</source>
        <translation>títulos</translation>
    </message>
    <message>
        <source>non-text only</source>
        <translation>só elementos não textuais</translation>
    </message>
    <message>
        <source>dividers and disabled parts only</source>
        <translation>só divisórias e elementos desativados</translation>
    </message>
    <message>
        <source>invisible</source>
        <translation>invisível</translation>
    </message>
</context>
<context>
    <name>ContrastBadge</name>
    <message>
        <source> to </source>
        <extracomment>The colon of a contrast ratio read aloud: &quot;4.5 to 1&quot;; keep the spaces</extracomment>
        <translation> para </translation>
    </message>
</context>
<context>
    <name>ContrastComparisonView</name>
    <message>
        <source>Text and Background</source>
        <translation>Texto e fundo</translation>
    </message>
    <message>
        <source>Pick another color to see how the two read as text and background.</source>
        <translation>Capture outra cor para ver como as duas ficam como texto e fundo.</translation>
    </message>
    <message>
        <source>Compared color</source>
        <translation>Cor comparada</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Trocar</translation>
    </message>
    <message>
        <source>Swap text and background</source>
        <translation>Trocar texto e fundo</translation>
    </message>
    <message>
        <source>Sample text</source>
        <translation>Texto de exemplo</translation>
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
        <translation>Não textual</translation>
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
        <translation>Prévia: texto %1 sobre %2</translation>
    </message>
    <message>
        <source>Now %1 is the text</source>
        <translation>Agora %1 é o texto</translation>
    </message>
    <message>
        <source> to 1</source>
        <extracomment>A contrast ratio read aloud: &quot;4.5 to 1&quot;; keep the spaces</extracomment>
        <translation> para 1</translation>
    </message>
    <message>
        <source>Contrast ratio %1</source>
        <translation>Taxa de contraste %1</translation>
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
        <translation>Exportar cores</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Plain Text (*.txt)</source>
        <translation>Texto simples (*.txt)</translation>
    </message>
    <message>
        <source>Export Failed</source>
        <translation>Falha na exportação</translation>
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
        <translation>Capturar uma cor</translation>
    </message>
    <message>
        <source>Show or hide Vantle</source>
        <translation>Mostrar ou ocultar o Vantle</translation>
    </message>
</context>
<context>
    <name>HotkeyRecorderView</name>
    <message>
        <source>Clear the %1 shortcut</source>
        <translation>Limpar o atalho “%1”</translation>
    </message>
    <message>
        <source>Press shortcut…</source>
        <translation>Pressione o atalho…</translation>
    </message>
    <message>
        <source>None - click to set</source>
        <translation>Nenhum - clique para definir</translation>
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
        <translation>Capturar cor</translation>
    </message>
    <message>
        <source>Last: #FF6B35</source>
        <translation>Última: #FF6B35</translation>
    </message>
    <message>
        <source>Start Using vantle</source>
        <translation>Começar a usar o vantle</translation>
    </message>
    <message>
        <source>You&apos;re all set.</source>
        <translation>Tudo pronto.</translation>
    </message>
    <message>
        <source>Look for the eyedropper icon in your system tray.</source>
        <translation>Procure o ícone do conta-gotas na bandeja do sistema.</translation>
    </message>
    <message>
        <source>Pick any color from anywhere on your screen with one click.</source>
        <translation>Capture qualquer cor de qualquer lugar da tela com um clique.</translation>
    </message>
    <message>
        <source>The color value is copied to your clipboard instantly in your preferred format.</source>
        <translation>O valor da cor é copiado na hora para a área de transferência, no seu formato preferido.</translation>
    </message>
    <message>
        <source>Pin your favorite colors and build a palette you can export anytime.</source>
        <translation>Fixe suas cores favoritas e monte uma paleta para exportar quando quiser.</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Começar</translation>
    </message>
    <message>
        <source>Welcome to vantle</source>
        <translation>Boas-vindas ao vantle</translation>
    </message>
</context>
<context>
    <name>OnboardingWindow</name>
    <message>
        <source>Welcome to vantle</source>
        <translation>Boas-vindas ao vantle</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
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
        <translation>Atualização de software</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>Tudo atualizado!</translation>
    </message>
    <message>
        <source>%1 %2 is the latest version.</source>
        <translation>%1 %2 é a versão mais recente.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>A new version of %1 is available!</source>
        <translation>Uma nova versão do %1 está disponível!</translation>
    </message>
    <message>
        <source>%1 %2 is now available — you have %3. Would you like to download it now?</source>
        <translation>%1 %2 está disponível — você tem a %3. Deseja baixá-la agora?</translation>
    </message>
    <message>
        <source>Release Notes:</source>
        <translation>Notas de lançamento:</translation>
    </message>
    <message>
        <source>Read the release notes</source>
        <translation>Ler as notas de lançamento</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Pular esta versão</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Lembrar mais tarde</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Baixar</translation>
    </message>
    <message>
        <source>Downloading %1…</source>
        <translation>Baixando %1…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Update Failed</source>
        <translation>Falha na atualização</translation>
    </message>
    <message>
        <source>%1 was downloaded in the background.</source>
        <translation>%1 foi baixado em segundo plano.</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 foi baixado.</translation>
    </message>
    <message>
        <source>The file is saved as %1. Install it the way you installed this version.</source>
        <translation>O arquivo foi salvo como %1. Instale-o da mesma forma que instalou esta versão.</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostrar na pasta</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Vantle Settings</source>
        <translation>Configurações do Vantle</translation>
    </message>
</context>
<context>
    <name>RenameColorSheet</name>
    <message>
        <source>Rename Color</source>
        <translation>Renomear cor</translation>
    </message>
    <message>
        <source>Color name (optional)</source>
        <translation>Nome da cor (opcional)</translation>
    </message>
    <message>
        <source>Color name</source>
        <translation>Nome da cor</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
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
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>Pick any color from anywhere on your screen with one click.</source>
        <translation>Capture qualquer cor de qualquer lugar da tela com um clique.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Verificar atualizações…</translation>
    </message>
    <message>
        <source>Automatically download updates</source>
        <translation>Baixar atualizações automaticamente</translation>
    </message>
    <message>
        <source>Vantle Website</source>
        <translation>Site do Vantle</translation>
    </message>
    <message>
        <source>%1 Website</source>
        <translation>Site da %1</translation>
    </message>
    <message>
        <source>Made by %1.</source>
        <translation>Feito por %1.</translation>
    </message>
    <message>
        <source>Default format</source>
        <translation>Formato padrão</translation>
    </message>
    <message>
        <source>Color Format</source>
        <translation>Formato de cor</translation>
    </message>
    <message>
        <source>Pick color</source>
        <translation>Capturar cor</translation>
    </message>
    <message>
        <source>Toggle popup</source>
        <translation>Mostrar/ocultar janela</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atalhos de teclado</translation>
    </message>
    <message>
        <source>On GNOME these shortcuts live among the custom shortcuts in Settings › Keyboard.</source>
        <translation>No GNOME, estes atalhos ficam entre os atalhos personalizados em Configurações › Teclado.</translation>
    </message>
    <message>
        <source>Show colored dot for last picked color</source>
        <translation>Mostrar um ponto da última cor capturada</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>Ícone da bandeja</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Iniciar ao entrar na sessão</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>History limit</source>
        <translation>Limite do histórico</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Limpar histórico</translation>
    </message>
    <message>
        <source>Pinned colors will be preserved.</source>
        <translation>As cores fixadas serão mantidas.</translation>
    </message>
    <message>
        <source>Data</source>
        <extracomment>Heading of the settings about the stored history</extracomment>
        <translation>Dados</translation>
    </message>
    <message>
        <source>Reduce History</source>
        <translation>Reduzir histórico</translation>
    </message>
    <message>
        <source>This will remove the oldest 1 color.</source>
        <translation>Isto removerá a cor mais antiga.</translation>
    </message>
    <message numerus="yes">
        <source>This will remove the oldest %n colors.</source>
        <translation>
            <numerusform>Isto removerá a cor mais antiga.</numerusform>
            <numerusform>Isto removerá as %n cores mais antigas.</numerusform>
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
        <translation>Saiba mais</translation>
    </message>
    <message>
        <source>No other %1 applications are listed in this build.</source>
        <translation>Nenhum outro aplicativo da %1 está listado nesta compilação.</translation>
    </message>
    <message>
        <source>All %1 applications</source>
        <translation>Todos os aplicativos da %1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>More %1</source>
        <extracomment>The tab of the maker&apos;s other applications; %1 is the maker&apos;s name</extracomment>
        <translation>Mais da %1</translation>
    </message>
</context>
<context>
    <name>UpdaterController</name>
    <message>
        <source>This app</source>
        <translation>Este aplicativo</translation>
    </message>
</context>
</TS>
