<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
</context>
<context>
    <name>gallery</name>
    <message>
        <source>Open the &amp;pen dialog…</source>
        <translation>打开画笔对话框(&amp;P)…</translation>
    </message>
    <message>
        <source>Open the f&amp;ont dialog…</source>
        <translation>打开字体对话框(&amp;O)…</translation>
    </message>
    <message>
        <source>Open the pro&amp;gress dialog…</source>
        <translation>打开进度对话框(&amp;G)…</translation>
    </message>
    <message>
        <source>Open the &amp;message dialog…</source>
        <translation>打开消息对话框(&amp;M)…</translation>
    </message>
    <message>
        <source>Open the &amp;input dialog…</source>
        <translation>打开输入对话框(&amp;I)…</translation>
    </message>
    <message>
        <source>Open the &amp;bit dialog…</source>
        <translation>打开位对话框(&amp;B)…</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>语言(&amp;L)：</translation>
    </message>
    <message>
        <source>&amp;Style sheet:</source>
        <translation>样式表(&amp;S)：</translation>
    </message>
    <message>
        <source>Colour, width and line style of a pen. CPenDialog::getPen() does it in one call.</source>
        <translation>设置画笔的颜色、线宽和线型。CPenDialog::getPen() 一次调用即可完成。</translation>
    </message>
    <message>
        <source>The application&apos;s font: families in order of preference, size, bold and italic, with an example.</source>
        <translation>应用程序的字体：按优先顺序排列的字体族、字号、加粗和倾斜，并带有示例。</translation>
    </message>
    <message>
        <source>The icons are the host&apos;s: text.svg, plus.svg and minus.svg in :/svg/primary. The gallery&apos;s style sheet draws the check boxes as switches, by their property qssIconName.</source>
        <translation>图标由宿主提供：:/svg/primary 中的 text.svg、plus.svg 和 minus.svg。示例库的样式表根据属性 qssIconName 把复选框画成开关。</translation>
    </message>
    <message>
        <source>An empty form with a button box, which the host fills and connects.</source>
        <translation>一个带按钮栏的空表单，由宿主填入内容并连接信号。</translation>
    </message>
    <message>
        <source>A line of text, a bar and Cancel, driven by the host&apos;s own work.</source>
        <translation>一行文字、一个进度条和“取消”按钮，由宿主自己的工作来驱动。</translation>
    </message>
    <message>
        <source>A log in colours that stays until it is dismissed.</source>
        <translation>彩色日志，一直显示到被关闭为止。</translation>
    </message>
    <message>
        <source>Choose the colours by the ground: dark steps of the palette for a light window, light ones for a dark.</source>
        <translation>按背景选择颜色：浅色窗口用调色板的深色阶，深色窗口用浅色阶。</translation>
    </message>
    <message>
        <source>A log in colours as a widget. Its context menu can have Clear at the end, as here; markup in a text counts.</source>
        <translation>以控件形式显示的彩色日志。其右键菜单末尾可以有“清空”一项，如此处所示；文字中的标记会生效。</translation>
    </message>
    <message>
        <source>A scroll area whose content is as wide as what is seen of it. This page is one, too.</source>
        <translation>一个滚动区域，其内容与可见部分同宽。本页面也是如此。</translation>
    </message>
    <message>
        <source>A cursor for as long as the object lives.</source>
        <translation>对象存在期间一直显示的光标。</translation>
    </message>
    <message>
        <source>A table whose cells tell their own kind and get the right editor or dialog. Here is a cell of every kind.</source>
        <translation>表格的单元格自行说明其种类，并得到合适的编辑器或对话框。这里每种单元格各有一个。</translation>
    </message>
    <message>
        <source>The model behind it. A subclass answers value and kind; texts, colours, check marks and flags follow from them.</source>
        <translation>表格背后的模型。子类回答值和种类；文字、颜色、勾选标记和标志由此得出。</translation>
    </message>
    <message>
        <source>What a cell shows is asked for anew whenever the language changes: report all cells as changed then.</source>
        <translation>单元格的内容在语言改变时需重新查询：此时请报告所有单元格已改变。</translation>
    </message>
    <message>
        <source>What three of the cells answer: an integer, a real number and a text with a pattern.</source>
        <translation>其中三个单元格的回答：一个整数、一个实数和一个带模式的文本。</translation>
    </message>
    <message>
        <source>The same cells in a tree.</source>
        <translation>同样的单元格，以树的形式显示。</translation>
    </message>
    <message>
        <source>Bytes as hexadecimal text, as binary text and bit by bit, with a description where a bit has one. The table above opens it for its bytes.</source>
        <translation>以十六进制文本、二进制文本和逐位的方式编辑字节，有说明的位会显示说明。上面的表格也用它来编辑字节。</translation>
    </message>
    <message>
        <source>One box for each fixed integer width, signed and unsigned. It holds its value in exactly that type and shows it in base 2, 10 or 16. The three boxes of a row show one number.</source>
        <translation>每种固定宽度的整数（有符号和无符号）各有一个输入框。它恰好以该类型保存值，并以二进制、十进制或十六进制显示。同一行的三个输入框显示同一个数。</translation>
    </message>
    <message>
        <source>The size hint does not know the range: give the box a minimum width. The boxes above have one that follows the font.</source>
        <translation>建议尺寸并不知道取值范围：请给输入框设置最小宽度。上面的输入框的最小宽度随字体而变。</translation>
    </message>
    <message>
        <source>The value never leaves its range. What stands before and behind the number is not selected with it.</source>
        <translation>值永远不会超出范围。数字前后的文字不会随数字一起被选中。</translation>
    </message>
    <message>
        <source>A suffix is part of what is read, and text that is typed in front of it is refused. Where numbers are to be typed, put the unit into the caption, as below.</source>
        <translation>后缀也会参与解析，在它前面键入的文字会被拒绝。需要键入数字时，请像下面那样把单位写进标题。</translation>
    </message>
    <message>
        <source>Stepping beyond one end of the range comes in from the other.</source>
        <translation>步进越过范围的一端时，会从另一端进入。</translation>
    </message>
    <message>
        <source>A step is a fixed number, or a tenth of the value&apos;s decimal magnitude.</source>
        <translation>步长是一个固定的数，或者是值的十进制数量级的十分之一。</translation>
    </message>
    <message>
        <source>A read-only box can be selected and copied, a disabled one cannot. A special text stands for the minimum.</source>
        <translation>只读的输入框可以选中和复制，禁用的则不能。特殊文字代表最小值。</translation>
    </message>
    <message>
        <source>A double spin box with the number formats of QString::number(), always with a decimal point.</source>
        <translation>采用 QString::number() 的数字格式的双精度输入框，小数点始终是句点。</translation>
    </message>
    <message>
        <source>Every step multiplies or divides by 1 + single step.</source>
        <translation>每一步都乘以或除以“1 + 单步值”。</translation>
    </message>
    <message>
        <source>A combo box that is told what to show by an item&apos;s data. Codes that no item has change nothing: try 1, 2 and 8.</source>
        <translation>根据选项的数据来决定显示哪一项的组合框。没有对应选项的代码不会引起变化：请试试 1、2 和 8。</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>服务</translation>
    </message>
    <message>
        <source>Items and bits</source>
        <translation>单元格与位</translation>
    </message>
    <message>
        <source>Dialogs</source>
        <translation>对话框</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>步骤</translation>
    </message>
    <message>
        <source>A palette of five families in nine steps, and black or white for text on any colour.</source>
        <translation>五个色系、九个明度阶的调色板，以及在任意颜色上显示文字所用的黑色或白色。</translation>
    </message>
    <message>
        <source>The next of 510 colours in an order that is shuffled once, for the curves of a plot, say.</source>
        <translation>510 种颜色中的下一种，顺序只打乱一次，例如可用于绘图的曲线。</translation>
    </message>
    <message>
        <source>Replaces the application&apos;s style sheet: the rule of its font first, then the sheets of :/qss that are asked for, the library&apos;s own and the host&apos;s. Choose others above.</source>
        <translation>替换应用程序的样式表：首先是字体规则，然后是 :/qss 中指定的样式表，包括库自带的和宿主的。可在上方选择其他样式表。</translation>
    </message>
    <message>
        <source>The sheets follow one another as the folder lists them. Where a host&apos;s rule shall win over one of the library&apos;s, give it a more specific selector.</source>
        <translation>样式表按文件夹列出的顺序依次排列。若要让宿主的规则优先于库的规则，请使用更具体的选择器。</translation>
    </message>
    <message>
        <source>The font that the last style sheet was headed by. The user chooses it in FontSettingDlg.</source>
        <translation>最近一次样式表开头所用的字体。用户在 FontSettingDlg 中选择它。</translation>
    </message>
    <message>
        <source>The host&apos;s fonts are registered at the start, all of :/ttf.</source>
        <translation>宿主的字体（:/ttf 中的全部字体）在启动时注册。</translation>
    </message>
    <message>
        <source>Integer spin boxes by type code. The settings are those of a table&apos;s cell.</source>
        <translation>按类型代码创建整数输入框。其设置与表格单元格的设置相同。</translation>
    </message>
    <message>
        <source>A tool tip that is the widget&apos;s own text, and follows it: type something.</source>
        <translation>工具提示就是控件自己的文字，并随之变化：请键入一些内容。</translation>
    </message>
    <message>
        <source>Sizes a window by fractions of the screen, and centres it.</source>
        <translation>按屏幕的比例设置窗口大小，并使其居中。</translation>
    </message>
    <message>
        <source>What CDataComboBox and CustomTextBrowser do, for Qt&apos;s own widgets.</source>
        <translation>为 Qt 自带的控件提供 CDataComboBox 和 CustomTextBrowser 的功能。</translation>
    </message>
    <message>
        <source>Named steps with arrows between them, for pages that are gone through in order. A new bar only shows where one is.</source>
        <translation>带有名称的步骤，之间以箭头相连，用于依次经过的页面。新建的步骤条只显示当前所在的位置。</translation>
    </message>
    <message>
        <source>Steps can be clicked when they are enabled, all of them or one by one. The bar reports the click; whether to move is the host&apos;s decision.</source>
        <translation>步骤启用后即可点击，可以全部启用，也可以逐个启用。步骤条只报告点击；是否移动由宿主决定。</translation>
    </message>
    <message>
        <source>The steps stand at the start, in the middle or at the end.</source>
        <translation>步骤位于开头、中间或末尾。</translation>
    </message>
    <message>
        <source>Set the alignment once, when all steps are in: the bar goes on counting places as in a centred one.</source>
        <translation>请在所有步骤都加入之后只设置一次对齐方式：步骤条此后仍按居中的方式计算位置。</translation>
    </message>
    <message>
        <source>Downwards and upwards, with arrows that point there.</source>
        <translation>向下和向上，箭头指向相应的方向。</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>使能</translation>
    </message>
    <message>
        <source>Interrupt on error</source>
        <translation>出错时中断</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>Booleans</source>
        <translation>布尔值</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Numbers and texts</source>
        <translation>数字与文本</translation>
    </message>
    <message>
        <source>With a dialog</source>
        <translation>使用对话框</translation>
    </message>
    <message>
        <source>&amp;Next colours</source>
        <translation>下一组颜色(&amp;N)</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>时钟</translation>
    </message>
    <message>
        <source>Frequency in Hz</source>
        <translation>频率 (Hz)</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>Its tool tip</source>
        <translation>它的工具提示</translation>
    </message>
    <message>
        <source>Loaded</source>
        <translation>已加载</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>F&amp;our fifths of the screen</source>
        <translation>屏幕的五分之四(&amp;O)</translation>
    </message>
    <message>
        <source>New register</source>
        <translation>新建寄存器</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N)：</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>地址(&amp;A)：</translation>
    </message>
    <message>
        <source>Base 10</source>
        <translation>十进制</translation>
    </message>
    <message>
        <source>Base 16</source>
        <translation>十六进制</translation>
    </message>
    <message>
        <source>Base 2</source>
        <translation>二进制</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>电平</translation>
    </message>
    <message>
        <source>Phase in degrees</source>
        <translation>相位（度）</translation>
    </message>
    <message>
        <source>Steps of 100</source>
        <translation>步长 100</translation>
    </message>
    <message>
        <source>Adaptive steps</source>
        <translation>自适应步长</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>禁用</translation>
    </message>
    <message>
        <source>Special value</source>
        <translation>特殊值</translation>
    </message>
    <message>
        <source>double click, or F2</source>
        <translation>双击，或按 F2</translation>
    </message>
    <message>
        <source>click</source>
        <translation>单击</translation>
    </message>
    <message>
        <source>click, in a dialog</source>
        <translation>单击，在对话框中</translation>
    </message>
    <message>
        <source>nothing, it is disabled</source>
        <translation>无法更改，已禁用</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>慢</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>快</translation>
    </message>
    <message>
        <source>Pull-up</source>
        <translation>上拉</translation>
    </message>
    <message>
        <source>Pull-down</source>
        <translation>下拉</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>12 registers written.</source>
        <translation>已写入 12 个寄存器。</translation>
    </message>
    <message>
        <source>1 register skipped.</source>
        <translation>已跳过 1 个寄存器。</translation>
    </message>
    <message>
        <source>No answer from 0x40.</source>
        <translation>0x40 没有应答。</translation>
    </message>
    <message>
        <source>Writing registers…</source>
        <translation>正在写入寄存器…</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>读取</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>写入</translation>
    </message>
    <message>
        <source>&amp;Work for a second</source>
        <translation>工作一秒钟(&amp;W)</translation>
    </message>
    <message>
        <source>The dialog leaves keys to its subclass and calls itself for every key but Escape, so a host gives it one, as here.</source>
        <translation>对话框把按键交给子类处理，除 Escape 之外的每个按键都会调用自身，因此宿主要像这里一样给它一个子类。</translation>
    </message>
    <message>
        <source>The flat button shows the colour by its palette: keep a style sheet&apos;s rules for buttons away from flat ones.</source>
        <translation>扁平按钮用其调色板显示颜色：样式表中的按钮规则不要用于扁平按钮。</translation>
    </message>
    <message>
        <source>In force</source>
        <translation>当前字体</translation>
    </message>
    <message>
        <source>The arrows are the host&apos;s, :/svg/primary/arrow-forward.svg and its three sisters. The boxes in front of the steps are hidden by the library&apos;s style sheet: choose None above to see them. The library&apos;s colours suit a light window; the gallery&apos;s sheet has some for a dark one, too, and tells apart what can be clicked.</source>
        <translation>箭头由宿主提供：:/svg/primary/arrow-forward.svg 及另外三个方向的文件。步骤前的方框被库的样式表隐藏：在上方选择“无”即可看到。库的颜色适合浅色窗口；示例库的样式表也提供了适合深色窗口的颜色，并区分出可以点击的步骤。</translation>
    </message>
    <message>
        <source>A window that is read from right to left mirrors its bars, arrows and all: tick Right to left above. This one has a direction of its own.</source>
        <translation>从右到左阅读的窗口会镜像步骤条，包括箭头：请勾选上方的“从右到左”。这一条有自己的方向。</translation>
    </message>
    <message>
        <source>The wheel scrolls the page and leaves the boxes under the pointer as they are. Click one, and the wheel is for it.</source>
        <translation>滚轮滚动页面，指针下的控件保持不变。点击某个控件后，滚轮便作用于它。</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>速率</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
</context>
<context>
    <name>gallery::CellTable</name>
    <message>
        <source>Kind</source>
        <translation>种类</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>更改方式</translation>
    </message>
</context>
<context>
    <name>gallery::CellTree</name>
    <message>
        <source>Kind</source>
        <translation>种类</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>gallery::LookBar</name>
    <message>
        <source>Look</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>深色(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Right to left</source>
        <translation>从右到左(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Font…</source>
        <translation>字体(&amp;F)…</translation>
    </message>
    <message>
        <source>Gallery</source>
        <translation>示例库</translation>
    </message>
</context>
<context>
    <name>gallery::MainWindow</name>
    <message>
        <source>Tessera Gallery</source>
        <translation>Tessera 示例库</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
</context>
<context>
    <name>gallery::TextLabel</name>
    <message>
        <source>For the host:</source>
        <translation>宿主须知：</translation>
    </message>
</context>
</TS>
