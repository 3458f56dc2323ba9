<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Engine</name>
    <message>
        <source>cannot be read (%1)</source>
        <translation>无法读取（%1）</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>标准输入</translation>
    </message>
    <message>
        <source>{name}</source>
        <extracomment>{name} stands in task files, {label} in the editor; use one of them.</extracomment>
        <translation>{name}</translation>
    </message>
    <message>
        <source>scalar</source>
        <translation>scalar</translation>
    </message>
    <message>
        <source>steps[{index}]</source>
        <extracomment>{index} counts from 0 as task files do, {number} from 1; use one of them.</extracomment>
        <translation>steps[{index}]</translation>
    </message>
    <message>
        <source>int</source>
        <translation>int</translation>
    </message>
    <message>
        <source>double</source>
        <translation>double</translation>
    </message>
    <message>
        <source>string</source>
        <translation>string</translation>
    </message>
    <message>
        <source>bool</source>
        <translation>bool</translation>
    </message>
    <message>
        <source>list</source>
        <translation>list</translation>
    </message>
    <message>
        <source>table</source>
        <translation>table</translation>
    </message>
    <message>
        <source>%1,%2</source>
        <translation>%1,%2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 或 %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>an empty file name; expected a file</source>
        <translation>文件名为空；应为文件</translation>
    </message>
</context>
<context>
    <name>Runner</name>
    <message>
        <source>standard input</source>
        <translation>标准输入</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>标准输出</translation>
    </message>
    <message>
        <source>standard error</source>
        <translation>标准错误输出</translation>
    </message>
    <message>
        <source>leads to the same file as %1; expected another file</source>
        <translation>与%1指向同一个文件；应为另一个文件</translation>
    </message>
    <message>
        <source>%1 is the same file as %2; expected another file</source>
        <translation>%1 与%2是同一个文件；应为另一个文件</translation>
    </message>
    <message>
        <source>plug-in</source>
        <translation>插件</translation>
    </message>
    <message>
        <source>no language %1; expected %2</source>
        <translation>没有语言 %1；应为：%2</translation>
    </message>
    <message>
        <source>%1. Try &quot;%2&quot;.</source>
        <translation>%1。请运行 &quot;%2&quot; 查看用法。</translation>
    </message>
    <message>
        <source>no command</source>
        <translation>没有命令</translation>
    </message>
    <message>
        <source>no command %1</source>
        <translation>没有命令 %1</translation>
    </message>
    <message>
        <source>%1; expected %2</source>
        <translation>%1；应为：%2</translation>
    </message>
    <message>
        <source>no argument</source>
        <translation>没有参数</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无参数</translation>
    </message>
    <message>
        <source>%1; options of a command follow it</source>
        <translation>%1；命令的选项写在命令之后</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>未知选项 %1</translation>
    </message>
    <message>
        <source>%1; for the file of that name write %2</source>
        <translation>%1；如果指的是该名称的文件，请写 %2</translation>
    </message>
    <message>
        <source>%1 is given %2 times, with %3; expected one value</source>
        <translation>%1 给出了 %2 次：%3；应只有一个值</translation>
    </message>
    <message>
        <source>no operation %1; expected %2</source>
        <translation>没有操作 %1；应为：%2</translation>
    </message>
    <message>
        <source>%1 more like this one: %2</source>
        <translation>同类消息还有 %1 条：%2</translation>
    </message>
    <message>
        <source>a NUL character; expected UTF-8 (text in UTF-16 has to be converted)</source>
        <translation>含有 NUL 字符；应为：UTF-8（UTF-16 文本须先转换）</translation>
    </message>
    <message>
        <source>text in UTF-16; expected UTF-8: convert it, for instance with &quot;iconv -f UTF-16 -t UTF-8&quot;</source>
        <translation>这是 UTF-16 文本；应为：UTF-8：请先转换，例如用 &quot;iconv -f UTF-16 -t UTF-8&quot;</translation>
    </message>
    <message>
        <source>a zip archive, such as a spreadsheet (.xlsx); expected text: export the rows as text in UTF-8</source>
        <translation>这是 zip 压缩文件，例如电子表格（.xlsx）；应为文本：请将数据行导出为 UTF-8 文本</translation>
    </message>
    <message>
        <source>a binary file, such as a spreadsheet (.xls); expected text: export the rows as text in UTF-8</source>
        <translation>这是二进制文件，例如电子表格（.xls）；应为文本：请将数据行导出为 UTF-8 文本</translation>
    </message>
    <message>
        <source>a file compressed with gzip; expected text: decompress it, for instance with &quot;gzip -dc&quot;</source>
        <translation>这是 gzip 压缩文件；应为文本：请先解压，例如用 &quot;gzip -dc&quot;</translation>
    </message>
    <message>
        <source>looks like text in UTF-16 without a byte order mark; expected UTF-8: convert it, for instance with &quot;iconv -f UTF-16LE -t UTF-8&quot;</source>
        <translation>看起来是没有字节顺序标记的 UTF-16 文本；应为：UTF-8：请先转换，例如用 &quot;iconv -f UTF-16LE -t UTF-8&quot;</translation>
    </message>
    <message>
        <source>looks like text in UTF-16 without a byte order mark; expected UTF-8: convert it, for instance with &quot;iconv -f UTF-16BE -t UTF-8&quot;</source>
        <translation>看起来是没有字节顺序标记的 UTF-16 文本；应为：UTF-8：请先转换，例如用 &quot;iconv -f UTF-16BE -t UTF-8&quot;</translation>
    </message>
    <message>
        <source>looks like a JSON array; expected a JSON object on each line: convert it, for instance with &quot;jq -c .[]&quot;</source>
        <translation>看起来是 JSON 数组；应为每行一个 JSON 对象：请先转换，例如用 &quot;jq -c .[]&quot;</translation>
    </message>
    <message>
        <source>looks like a JSON object over several lines; expected a JSON object on each line: convert it, for instance with &quot;jq -c .&quot;</source>
        <translation>看起来是占多行的 JSON 对象；应为每行一个 JSON 对象：请先转换，例如用 &quot;jq -c .&quot;</translation>
    </message>
    <message>
        <source>looks like CSV; expected a JSON object on each line: convert it, or use &quot;--lines NAME&quot; to take each line as text</source>
        <translation>看起来是 CSV；应为每行一个 JSON 对象：请先转换，或用 &quot;--lines NAME&quot; 把每行当作文本</translation>
    </message>
    <message>
        <source>looks like plain text; expected a JSON object on each line: use &quot;--lines NAME&quot; to take each line as text</source>
        <translation>看起来是普通文本；应为每行一个 JSON 对象：请用 &quot;--lines NAME&quot; 把每行当作文本</translation>
    </message>
    <message>
        <source>%1; expected skip or keep</source>
        <translation>%1；应为：skip 或 keep</translation>
    </message>
    <message>
        <source>cannot go with &quot;--on-error keep&quot;</source>
        <translation>不能与 &quot;--on-error keep&quot; 同时使用</translation>
    </message>
    <message>
        <source>; %1 skipped</source>
        <translation>；跳过 %1 行</translation>
    </message>
    <message>
        <source>; the row: %1</source>
        <translation>；该行内容：%1</translation>
    </message>
    <message>
        <source>; the row of %1 bytes begins: %2</source>
        <translation>；该行共 %1 字节，开头为：%2</translation>
    </message>
    <message>
        <source>; &quot;--errors FILE&quot; keeps all of them</source>
        <translation>；用 &quot;--errors FILE&quot; 可保留全部</translation>
    </message>
    <message>
        <source>standard input cannot be both the task and the rows; expected a file for one of them</source>
        <translation>任务和数据行不能都来自标准输入；其中之一应为文件</translation>
    </message>
    <message>
        <source>the variable has a value by another --set; expected one</source>
        <translation>另一个 --set 已给出该变量的值；应只有一个</translation>
    </message>
    <message>
        <source>validate: %1. Try &quot;oprun validate --help&quot;.</source>
        <translation>validate: %1。请运行 &quot;oprun validate --help&quot; 查看用法。</translation>
    </message>
    <message>
        <source>--only: no check %1; expected %2</source>
        <translation>--only: 没有检查 %1；应为：%2</translation>
    </message>
    <message>
        <source>--keep: %1; expected a folder</source>
        <translation>--keep: %1；应为文件夹</translation>
    </message>
    <message>
        <source>TMPDIR names no folder; expected one whose name is UTF-8</source>
        <translation>TMPDIR 指定的不是文件夹；应为名称是 UTF-8 的文件夹</translation>
    </message>
    <message>
        <source>what it means: %1</source>
        <translation>含义：%1</translation>
    </message>
    <message>
        <source>error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>note</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>1 error</source>
        <translation>1 个错误</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 个错误</translation>
    </message>
    <message>
        <source>1 warning</source>
        <translation>1 个警告</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 个警告</translation>
    </message>
    <message>
        <source>1 note</source>
        <translation>1 个提示</translation>
    </message>
    <message>
        <source>%1 notes</source>
        <translation>%1 个提示</translation>
    </message>
    <message>
        <source>no findings</source>
        <translation>没有发现问题</translation>
    </message>
    <message>
        <source>1 finding</source>
        <translation>发现 1 个问题</translation>
    </message>
    <message>
        <source>%1 findings</source>
        <translation>发现 %1 个问题</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1: %2: %3 [%4]</source>
        <extracomment>the place of a finding, how grave it is, what it is, and its name in brackets</extracomment>
        <translation>%1: %2：%3 [%4]</translation>
    </message>
    <message>
        <source>what happens: %1</source>
        <translation>结果：%1</translation>
    </message>
    <message>
        <source>what to do: %1</source>
        <translation>建议：%1</translation>
    </message>
    <message>
        <source>PROPERTY</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>LABEL</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>EDITOR</source>
        <translation>编辑器</translation>
    </message>
    <message>
        <source>DEFAULT</source>
        <translation>默认值</translation>
    </message>
    <message>
        <source>REMARKS</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>nothing is written</source>
        <translation>没有写入</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>警告：%1</translation>
    </message>
    <message>
        <source>nothing written</source>
        <translation>没有写入</translation>
    </message>
    <message>
        <source>warning %1</source>
        <translation>警告 %1</translation>
    </message>
    <message>
        <source>written to %1</source>
        <translation>写入了 %1</translation>
    </message>
    <message>
        <source>%1, example &quot;%2&quot;: %3; expected %4</source>
        <translation>%1，示例“%2”：%3；应为：%4</translation>
    </message>
    <message>
        <source>%1 examples, %2 differ</source>
        <translation>%1 个示例，%2 个不一致</translation>
    </message>
    <message>
        <source>what this takes does not fit into memory</source>
        <translation>内存不足，无法完成</translation>
    </message>
    <message>
        <source>no plug-in found in %1; expected one there or --plugin FILE</source>
        <translation>在 %1 中没有找到插件；那里应有插件，或使用 --plugin FILE</translation>
    </message>
    <message>
        <source>shown when %1 is %2</source>
        <translation>%1 为 %2 时显示</translation>
    </message>
    <message>
        <source>%1 (%2 characters)</source>
        <translation>%1（共 %2 个字符）</translation>
    </message>
    <message>
        <source>%1 (%2 elements)</source>
        <translation>%1（共 %2 个元素）</translation>
    </message>
    <message>
        <source>&quot;&quot;, since there is no such value</source>
        <translation>&quot;&quot;，因为没有这个值</translation>
    </message>
    <message>
        <source>no number</source>
        <translation>不是数值</translation>
    </message>
    <message>
        <source>no variable</source>
        <translation>不是变量</translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <translation>%1 为 %2</translation>
    </message>
    <message>
        <source>took %1 µs</source>
        <translation>用时 %1 µs</translation>
    </message>
    <message>
        <source>--plugin is for other commands; expected PLUGIN after the command</source>
        <translation>--plugin 用于其他命令；PLUGIN 应写在命令之后</translation>
    </message>
    <message>
        <source>%1; expected no plug-in with --list</source>
        <translation>%1；使用 --list 时不应给出插件</translation>
    </message>
    <message>
        <source>no plug-in; expected PLUGIN... or --list</source>
        <translation>没有插件；应为：PLUGIN... 或 --list</translation>
    </message>
    <message>
        <source>%1; expected a whole number from %2 to %3</source>
        <translation>%1；应为：%2 到 %3 之间的整数</translation>
    </message>
    <message>
        <source>threw %1</source>
        <translation>抛出了 %1</translation>
    </message>
    <message>
        <source>example &quot;%1&quot;</source>
        <translation>示例“%1”</translation>
    </message>
    <message>
        <source>loading %1</source>
        <translation>加载 %1</translation>
    </message>
    <message>
        <source>not there, or no program; expected the one that runs the checks</source>
        <translation>不存在，或不是程序；应为运行检查的程序</translation>
    </message>
    <message>
        <source>does not list the checks it knows</source>
        <translation>没有列出它能做的检查</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>第 %1 行</translation>
    </message>
    <message>
        <source>a row of more than %1 bytes</source>
        <translation>该行超过 %1 字节</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>第 %1 行第 %2 列</translation>
    </message>
    <message>
        <source>the rows do not fit into memory</source>
        <translation>内存不足，无法容纳数据行</translation>
    </message>
    <message>
        <source>nobody reads the output any more</source>
        <translation>输出已无人读取</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>stopped at the first that failed</source>
        <translation>在第一个失败处停止</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>中断</translation>
    </message>
    <message>
        <source>; %1</source>
        <translation>；%1</translation>
    </message>
    <message>
        <source>; %1 is not written</source>
        <translation>；没有写入 %1</translation>
    </message>
    <message>
        <source>cannot be read (%1)</source>
        <translation>无法读取（%1）</translation>
    </message>
    <message>
        <source>%1 rows: %2 done, %3 failed; %4 warnings</source>
        <translation>共 %1 行：完成 %2 行，失败 %3 行；%4 个警告</translation>
    </message>
    <message>
        <source>; %1 failed steps</source>
        <translation>；%1 个步骤失败</translation>
    </message>
    <message>
        <source>%1: interrupted before steps[%2]</source>
        <translation>%1: 在 steps[%2] 之前中断</translation>
    </message>
    <message>
        <source>%1; expected NAME=TEXT</source>
        <translation>%1；应为：NAME=TEXT</translation>
    </message>
    <message>
        <source>cannot go with rows; leave out &quot;--each&quot;</source>
        <translation>不能与数据行同时使用；请去掉 &quot;--each&quot;</translation>
    </message>
    <message>
        <source>is about rows; expected &quot;--each FILE&quot;, too</source>
        <translation>只用于数据行；还应有 &quot;--each FILE&quot;</translation>
    </message>
    <message>
        <source>this system has no time limit for runs</source>
        <translation>此系统不支持运行的时间限制</translation>
    </message>
    <message>
        <source>%1; expected a number of seconds greater than 0, such as 2.5</source>
        <translation>%1；应为大于 0 的秒数，例如 2.5</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1，来自 %2</translation>
    </message>
    <message>
        <source>%1: steps[%2] (%3): the step failed: it threw %4</source>
        <translation>%1: steps[%2] (%3): 步骤失败：抛出了 %4</translation>
    </message>
    <message>
        <source>failed: it threw %1</source>
        <translation>失败：抛出了 %1</translation>
    </message>
    <message>
        <source>: line %1</source>
        <translation>: 第 %1 行</translation>
    </message>
    <message>
        <source>: steps[%1]</source>
        <translation>: steps[%1]</translation>
    </message>
    <message>
        <source> (%1)</source>
        <translation> (%1)</translation>
    </message>
    <message>
        <source>ended by %1</source>
        <translation>因 %1 终止</translation>
    </message>
    <message>
        <source>ended by exit with status %1</source>
        <translation>因调用 exit 以状态 %1 结束</translation>
    </message>
    <message>
        <source>ended by force</source>
        <translation>被强制终止</translation>
    </message>
    <message>
        <source>, %1 s after the interruption</source>
        <translation>，此时已在中断之后 %1 秒</translation>
    </message>
    <message>
        <source>, since the row took more than %1 s</source>
        <translation>，因为该行用时超过 %1 秒</translation>
    </message>
    <message>
        <source>, since the run took more than %1 s</source>
        <translation>，因为运行用时超过 %1 秒</translation>
    </message>
    <message>
        <source> while it wrote its output</source>
        <translation> 在写入输出时</translation>
    </message>
    <message>
        <source> during this step</source>
        <translation> 在执行此步骤时</translation>
    </message>
    <message>
        <source> during one of these steps</source>
        <translation> 在执行其中一个步骤时</translation>
    </message>
    <message>
        <source> after its work was done</source>
        <translation> 在工作完成之后</translation>
    </message>
    <message>
        <source> while %1</source>
        <translation> 在%1时</translation>
    </message>
    <message>
        <source>oprun was %1%2%3</source>
        <translation>oprun%2 已%1%3</translation>
    </message>
    <message>
        <source>timed out</source>
        <translation>超时</translation>
    </message>
    <message>
        <source>crashed</source>
        <translation>已崩溃</translation>
    </message>
    <message>
        <source>; the last %1 of them are not printed</source>
        <translation>；最后 %1 行没有输出</translation>
    </message>
    <message>
        <source>signal %1</source>
        <translation>信号 %1</translation>
    </message>
    <message>
        <source>%1; expected refuse, ignore or keep</source>
        <translation>%1；应为 refuse、ignore 或 keep</translation>
    </message>
    <message>
        <source>is about rows of JSON; leave out &quot;--lines&quot;</source>
        <translation>只用于 JSON 数据行；请去掉 &quot;--lines&quot;</translation>
    </message>
    <message>
        <source>validate: interrupted, nothing is reported</source>
        <translation>validate：已中断，不输出报告</translation>
    </message>
</context>
</TS>
