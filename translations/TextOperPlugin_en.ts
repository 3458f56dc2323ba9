<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>QObject</name>
    <message>
        <source>文本操作插件</source>
        <translation>Text operations</translation>
    </message>
</context>
<context>
    <name>TextAppendOperation</name>
    <message>
        <source>文本</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>添加文本</source>
        <translation>Append text</translation>
    </message>
    <message>
        <source>将 %1 添加到 %2 之后，存入 %3</source>
        <translation>Append %1 to %2, store in %3</translation>
    </message>
    <message>
        <source>原文本</source>
        <translation>Source text</translation>
    </message>
    <message>
        <source>要添加的文本</source>
        <translation>Text to append</translation>
    </message>
    <message>
        <source>新文本保存到字符串变量</source>
        <translation>Store new text in string variable</translation>
    </message>
</context>
<context>
    <name>TextBetweenOperation</name>
    <message>
        <source>文本</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>截取文本</source>
        <translation>Extract text</translation>
    </message>
    <message>
        <source>按标识从 %1 中截取文本存入 %2</source>
        <translation>Extract text from %1 by markers, store in %2</translation>
    </message>
    <message>
        <source>原文本</source>
        <translation>Source text</translation>
    </message>
    <message>
        <source>截取位置</source>
        <translation>Part to extract</translation>
    </message>
    <message>
        <source>标识前</source>
        <translation>Before the marker</translation>
    </message>
    <message>
        <source>标识后</source>
        <translation>After the marker</translation>
    </message>
    <message>
        <source>标识之间</source>
        <translation>Between the markers</translation>
    </message>
    <message>
        <source>开始标识</source>
        <translation>Start marker</translation>
    </message>
    <message>
        <source>结束标识</source>
        <translation>End marker</translation>
    </message>
    <message>
        <source>忽略大小写</source>
        <translation>Ignore case</translation>
    </message>
    <message>
        <source>截取文本保存到字符串变量</source>
        <translation>Store extracted text in string variable</translation>
    </message>
</context>
<context>
    <name>TextCaseOperation</name>
    <message>
        <source>文本</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>转换大小写</source>
        <translation>Change case</translation>
    </message>
    <message>
        <source>将 %1 转换为%2，存入 %3</source>
        <translation>Change the case of %1 (to: %2), store in %3</translation>
    </message>
    <message>
        <source>小写</source>
        <translation>lowercase</translation>
    </message>
    <message>
        <source>首字母大写</source>
        <translation>Capitalized</translation>
    </message>
    <message>
        <source>大写</source>
        <translation>UPPERCASE</translation>
    </message>
    <message>
        <source>原文本</source>
        <translation>Source text</translation>
    </message>
    <message>
        <source>转换为</source>
        <translation>Change to</translation>
    </message>
    <message>
        <source>新文本保存到字符串变量</source>
        <translation>Store new text in string variable</translation>
    </message>
</context>
<context>
    <name>TextFindOperation</name>
    <message>
        <source>文本</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>查询子文本</source>
        <translation>Find substring</translation>
    </message>
    <message>
        <source>在 %1 中查找 %2 的位置存入 %3</source>
        <translation>Find the position of %2 in %1, store in %3</translation>
    </message>
    <message>
        <source>原文本</source>
        <translation>Source text</translation>
    </message>
    <message>
        <source>要查找的文本</source>
        <translation>Text to find</translation>
    </message>
    <message>
        <source>忽略大小写</source>
        <translation>Ignore case</translation>
    </message>
    <message>
        <source>找的位置保存到整型变量</source>
        <translation>Store position in int variable</translation>
    </message>
</context>
<context>
    <name>TextFromNumberOperation</name>
    <message>
        <source>文本</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>数值转文本</source>
        <translation>Number to text</translation>
    </message>
    <message>
        <source>将 %1 转为文本（小数位数 %2）存入 %3</source>
        <translation>Turn %1 into text (decimal places: %2), store in %3</translation>
    </message>
    <message>
        <source>原数值</source>
        <translation>Source number</translation>
    </message>
    <message>
        <source>小数位数</source>
        <translation>Decimal places</translation>
    </message>
    <message>
        <source>使用千分位符</source>
        <translation>Use thousands separators</translation>
    </message>
    <message>
        <source>新文本保存到字符串变量</source>
        <translation>Store new text in string variable</translation>
    </message>
</context>
<context>
    <name>TextJoinOperation</name>
    <message>
        <source>文本</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>拼接文本</source>
        <translation>Join texts</translation>
    </message>
    <message>
        <source>将列表 %1 用 %2 拼接存入 %3</source>
        <translation>Join list %1 with %2, store in %3</translation>
    </message>
    <message>
        <source>用于拼接的列表</source>
        <translation>List to join</translation>
    </message>
    <message>
        <source>分隔符</source>
        <translation>Separator</translation>
    </message>
    <message>
        <source>新文本保存到字符串变量</source>
        <translation>Store new text in string variable</translation>
    </message>
</context>
<context>
    <name>TextPadOperation</name>
    <message>
        <source>文本</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>填充文本</source>
        <translation>Pad text</translation>
    </message>
    <message>
        <source>向 %1 的 %2 位置插入填充文本 %3（总长 %4）存入 %5</source>
        <translation>Pad %1 with %3 (position: %2, total length: %4), store in %5</translation>
    </message>
    <message>
        <source>中间</source>
        <translation>Middle</translation>
    </message>
    <message>
        <source>右边</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>左边</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>原文本</source>
        <translation>Source text</translation>
    </message>
    <message>
        <source>填充位置</source>
        <translation>Pad position</translation>
    </message>
    <message>
        <source>索引值</source>
        <translation>Index</translation>
    </message>
    <message>
        <source>新文本总长度</source>
        <translation>Total length</translation>
    </message>
    <message>
        <source>新文本保存到字符串变量</source>
        <translation>Store new text in string variable</translation>
    </message>
</context>
<context>
    <name>TextReplaceOperation</name>
    <message>
        <source>文本</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>替换文本</source>
        <translation>Replace text</translation>
    </message>
    <message>
        <source>将 %1 中的 %2 替换为 %3（范围 %4）存入 %5</source>
        <translation>Replace %2 with %3 in %1 (occurrences: %4), store in %5</translation>
    </message>
    <message>
        <source>首个</source>
        <translation>First</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>All</translation>
    </message>
    <message>
        <source>原文本</source>
        <translation>Source text</translation>
    </message>
    <message>
        <source>要替换的文本</source>
        <translation>Text to replace</translation>
    </message>
    <message>
        <source>忽略大小写</source>
        <translation>Ignore case</translation>
    </message>
    <message>
        <source>替换为</source>
        <translation>Replace with</translation>
    </message>
    <message>
        <source>替换范围</source>
        <translation>Occurrences</translation>
    </message>
    <message>
        <source>新文本保存到字符串变量</source>
        <translation>Store new text in string variable</translation>
    </message>
</context>
<context>
    <name>TextReverseOperation</name>
    <message>
        <source>文本</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>反转文本</source>
        <translation>Reverse text</translation>
    </message>
    <message>
        <source>将 %1 反转后存入 %2</source>
        <translation>Reverse %1, store in %2</translation>
    </message>
    <message>
        <source>原文本</source>
        <translation>Source text</translation>
    </message>
    <message>
        <source>新文本保存到字符串变量</source>
        <translation>Store new text in string variable</translation>
    </message>
</context>
<context>
    <name>TextSplitOperation</name>
    <message>
        <source>文本</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>分割文本</source>
        <translation>Split text</translation>
    </message>
    <message>
        <source>将 %1 按固定宽度 %2 分割存入 %3</source>
        <translation>Split %1 by fixed width %2, store in %3</translation>
    </message>
    <message>
        <source>将 %1 按自定义分隔符 %2 分割存入 %3</source>
        <translation>Split %1 by custom separator %2, store in %3</translation>
    </message>
    <message>
        <source>将 %1 分割存入 %2</source>
        <translation>Split %1, store in %2</translation>
    </message>
    <message>
        <source>自定义字符</source>
        <translation>Custom separator</translation>
    </message>
    <message>
        <source>固定宽度</source>
        <translation>Fixed width</translation>
    </message>
    <message>
        <source>原文本</source>
        <translation>Source text</translation>
    </message>
    <message>
        <source>分隔符类型</source>
        <translation>Split by</translation>
    </message>
    <message>
        <source>宽度</source>
        <translation>Width</translation>
    </message>
    <message>
        <source>分隔符</source>
        <translation>Separator</translation>
    </message>
    <message>
        <source>新文本保存到列表变量</source>
        <translation>Store new texts in list variable</translation>
    </message>
</context>
<context>
    <name>TextSubstringOperation</name>
    <message>
        <source>文本</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>获取子文本</source>
        <translation>Get substring</translation>
    </message>
    <message>
        <source>从 %1 的第 %2 位取 %3 个字符存入 %4</source>
        <translation>Take part of %1 (start position: %2, number of characters: %3), store in %4</translation>
    </message>
    <message>
        <source>原文本</source>
        <translation>Source text</translation>
    </message>
    <message>
        <source>起始位置（从 0 开始）</source>
        <translation>Start position (from 0)</translation>
    </message>
    <message>
        <source>长度</source>
        <translation>Length</translation>
    </message>
    <message>
        <source>到文本末尾</source>
        <translation>To the end of the text</translation>
    </message>
    <message>
        <source>字符数</source>
        <translation>Number of characters</translation>
    </message>
    <message>
        <source>子文本保存到字符串变量</source>
        <translation>Store substring in string variable</translation>
    </message>
</context>
<context>
    <name>TextToNumberOperation</name>
    <message>
        <source>文本</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>文本转数值</source>
        <translation>Text to number</translation>
    </message>
    <message>
        <source>将 %1 解析为数值存入 %2</source>
        <translation>Read %1 as a number, store in %2</translation>
    </message>
    <message>
        <source>原文本</source>
        <translation>Source text</translation>
    </message>
    <message>
        <source>新数字保存到数值变量</source>
        <translation>Store new number in numeric variable</translation>
    </message>
</context>
<context>
    <name>TextTrimOperation</name>
    <message>
        <source>文本</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>文本去空格</source>
        <translation>Trim spaces</translation>
    </message>
    <message>
        <source>去除 %1 %2的空格，存入 %3</source>
        <translation>Remove spaces from %1 (where: %2), store in %3</translation>
    </message>
    <message>
        <source>尾部</source>
        <translation>End</translation>
    </message>
    <message>
        <source>头尾</source>
        <translation>Start and end</translation>
    </message>
    <message>
        <source>所有</source>
        <translation>Everywhere</translation>
    </message>
    <message>
        <source>头部</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>原文本</source>
        <translation>Source text</translation>
    </message>
    <message>
        <source>位置</source>
        <translation>Where</translation>
    </message>
    <message>
        <source>新文本保存到字符串变量</source>
        <translation>Store new text in string variable</translation>
    </message>
</context>
</TS>
