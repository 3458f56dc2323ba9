<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Engine</name>
    <message>
        <source>the operand counts as empty text</source>
        <translation>此处按空文本处理</translation>
    </message>
    <message>
        <source>the operand is no number: the step goes on without one, or does nothing</source>
        <translation>此处得不到数值：步骤会在缺少该数值的情况下继续，或什么也不做</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1或%2</translation>
    </message>
    <message>
        <source>write %1: white space is part of a name</source>
        <translation>改为 %1：空白字符也是名称的一部分</translation>
    </message>
    <message>
        <source>write %1, without braces</source>
        <translation>改为 %1，不要加花括号</translation>
    </message>
    <message>
        <source>write %1: capital and small letters differ</source>
        <translation>改为 %1：名称区分大小写</translation>
    </message>
    <message>
        <source>declare %1, or write %2</source>
        <translation>添加变量 %1，或改为 %2</translation>
    </message>
    <message>
        <source>write %1 alone, and put what follows it behind it in a step of its own</source>
        <translation>此处只写 %1，后面的内容另用一个步骤添加到它之后</translation>
    </message>
    <message>
        <source>declare %1</source>
        <translation>添加变量 %1</translation>
    </message>
    <message>
        <source>declare %1; a text that begins with &quot;$&quot; has to come from a variable</source>
        <translation>添加变量 %1；以 &quot;$&quot; 开头的文本只能由变量提供</translation>
    </message>
    <message>
        <source>%1 is none of the choices, which are 0 to %2</source>
        <translation>%1 不是有效的选项，选项编号为 0 到 %2</translation>
    </message>
    <message>
        <source>the step does what it does for another choice, or nothing</source>
        <translation>步骤会按别的选项执行，或什么也不做</translation>
    </message>
    <message>
        <source>choose %1</source>
        <translation>选择 %1</translation>
    </message>
    <message>
        <source>it is set, but not in use while %1 is %2</source>
        <translation>已设置，但%1为 %2 时不起作用</translation>
    </message>
    <message>
        <source>no editor shows it, and as a rule the step ignores it</source>
        <translation>编辑器不显示此项，步骤通常也不理会它</translation>
    </message>
    <message>
        <source>set %1 to %2, or leave %3 out</source>
        <translation>将%1改为 %2，或将%3恢复为默认值</translation>
    </message>
    <message>
        <source>the step reads %1</source>
        <translation>步骤读到的是 %1</translation>
    </message>
    <message>
        <source>the step reads nothing</source>
        <translation>步骤什么也读不到</translation>
    </message>
    <message>
        <source>the step reads an empty %1</source>
        <translation>步骤读到的是空%1</translation>
    </message>
    <message>
        <source>the step reads an empty text, which is no number</source>
        <translation>步骤读到的是空文本，不是数值</translation>
    </message>
    <message>
        <source>the step reads an empty text</source>
        <translation>步骤读到的是空文本</translation>
    </message>
    <message>
        <source>no step reads or writes %1</source>
        <translation>没有步骤读取或写入 %1</translation>
    </message>
    <message>
        <source>it keeps the value it starts with</source>
        <translation>它始终保持初始值</translation>
    </message>
    <message>
        <source>use it, or leave it out</source>
        <translation>使用它，或将其删除</translation>
    </message>
    <message>
        <source>%1 has no start value, and no step writes it</source>
        <translation>%1 没有初始值，也没有步骤写入它</translation>
    </message>
    <message>
        <source>declare it with a &quot;value&quot;, if only an empty one, or write it in a step</source>
        <translation>给它一个初始值（可以为空），或用某个步骤写入它</translation>
    </message>
    <message>
        <source>%1 is read here, but not written before %2</source>
        <translation>此处读取 %1，但它到%2才被写入</translation>
    </message>
    <message>
        <source>move that step before this one, or declare %1 with a &quot;value&quot;</source>
        <translation>将那一步移到此步骤之前，或给 %1 一个初始值</translation>
    </message>
    <message>
        <source>no step reads %1 before %2 writes it again</source>
        <translation>在%2再次写入 %1 之前，没有步骤读取它</translation>
    </message>
    <message>
        <source>this result is lost, unless %1 fails</source>
        <translation>除非%1失败，否则此结果会丢失</translation>
    </message>
    <message>
        <source>name another variable here, or leave the step out</source>
        <translation>此处改用另一个变量，或删除此步骤</translation>
    </message>
    <message>
        <source>no number is given</source>
        <translation>未填写数值</translation>
    </message>
    <message>
        <source>the step takes what it takes without one, or does nothing</source>
        <translation>步骤按未填写时的方式处理，或什么也不做</translation>
    </message>
    <message>
        <source>write the number, &quot;0&quot; where none is needed</source>
        <translation>填写数值；不需要时填 &quot;0&quot;</translation>
    </message>
    <message>
        <source>write %1 for the variable</source>
        <translation>要引用该变量，请写 %1</translation>
    </message>
    <message>
        <source>write digits, with &quot;.&quot; before decimals and no group separators</source>
        <translation>用数字书写，小数点用 &quot;.&quot;，不加千位分隔符</translation>
    </message>
    <message>
        <source>%1 is no number</source>
        <translation>%1 不是数值</translation>
    </message>
    <message>
        <source>the step goes on without a number, or does nothing</source>
        <translation>步骤会在缺少该数值的情况下继续，或什么也不做</translation>
    </message>
    <message>
        <source>%1 travels as a number</source>
        <translation>%1 会被当作数值传递</translation>
    </message>
    <message>
        <source>the operand becomes the text %1</source>
        <translation>此处会变成文本 %1</translation>
    </message>
    <message>
        <source>keep %1 in a string variable and refer to that</source>
        <translation>将 %1 存入字符串变量，再引用该变量</translation>
    </message>
    <message>
        <source>%1 is typed into the text</source>
        <translation>文本中直接输入了 %1</translation>
    </message>
    <message>
        <source>the backslash stays in it: operands have no escape sequences</source>
        <translation>反斜杠会原样保留：此处不支持转义序列</translation>
    </message>
    <message>
        <source>type the character itself, in a task file &quot;%1&quot;; if the backslash is meant, leave it</source>
        <translation>直接输入该字符（在任务文件中写作 &quot;%1&quot;）；如果要的就是反斜杠，则无需修改</translation>
    </message>
    <message>
        <source>&quot;$&quot; names no variable</source>
        <translation>&quot;$&quot; 后面没有变量名</translation>
    </message>
    <message>
        <source>the operand is the text &quot;$&quot;</source>
        <translation>此处就是文本 &quot;$&quot;</translation>
    </message>
    <message>
        <source>write a name behind it; if the sign is meant, keep it in a variable</source>
        <translation>在后面写上变量名；如果要的就是这个符号，请将它存入变量</translation>
    </message>
    <message>
        <source>%1 stands within a text</source>
        <translation>%1 夹在文本之中</translation>
    </message>
    <message>
        <source>it stays as it is: an operand is a reference as a whole or not at all</source>
        <translation>它会原样保留：此处要么整个是引用，要么完全不是</translation>
    </message>
    <message>
        <source>refer to the variable in an operand of its own, and put the texts together step by step</source>
        <translation>单独引用该变量，再用几个步骤把文本逐一拼接起来</translation>
    </message>
    <message>
        <source>%1 is the name of a variable that nobody reads</source>
        <translation>%1 是一个变量的名称，但没有步骤读取该变量</translation>
    </message>
    <message>
        <source>the operand is that name, not the value of the variable</source>
        <translation>此处是这个名称本身，而不是变量的值</translation>
    </message>
    <message>
        <source>write %1</source>
        <translation>改为 %1</translation>
    </message>
    <message>
        <source>nothing is written, as a rule with a warning</source>
        <translation>不会写入任何内容，通常会有警告</translation>
    </message>
    <message>
        <source>the step finds nothing to read, as a rule with a warning</source>
        <translation>步骤找不到可读取的内容，通常会有警告</translation>
    </message>
    <message>
        <source>no result variable is named</source>
        <translation>未指定结果变量</translation>
    </message>
    <message>
        <source>the step does nothing, as a rule with a warning</source>
        <translation>步骤什么也不做，通常会有警告</translation>
    </message>
    <message>
        <source>name a variable to receive the result</source>
        <translation>指定一个变量来接收结果</translation>
    </message>
    <message>
        <source>no variable is named</source>
        <translation>未指定变量</translation>
    </message>
    <message>
        <source>the step has nothing to read</source>
        <translation>步骤没有可读取的内容</translation>
    </message>
    <message>
        <source>name the variable to read</source>
        <translation>指定要读取的变量</translation>
    </message>
    <message>
        <source>write %1 and declare it</source>
        <translation>改为 %1，并添加该变量</translation>
    </message>
    <message>
        <source>%1 is no name: here a variable is named without &quot;$&quot;</source>
        <translation>%1 不是变量名：此处的变量名不带 &quot;$&quot;</translation>
    </message>
    <message>
        <source>%1 is no variable</source>
        <translation>没有名为 %1 的变量</translation>
    </message>
    <message>
        <source>%1 is declared as %2, not as %3</source>
        <translation>%1 的类型是%2，而不是%3</translation>
    </message>
    <message>
        <source>name a variable of type %1, or declare %2 as that</source>
        <translation>指定一个类型为%1的变量，或将 %2 改为该类型</translation>
    </message>
    <message>
        <source>the step cannot read it, as a rule with a warning</source>
        <translation>步骤无法读取它，通常会有警告</translation>
    </message>
    <message>
        <source>the number is stored as a whole number</source>
        <translation>数值以整数形式存入</translation>
    </message>
    <message>
        <source>the number is stored with its decimals</source>
        <translation>数值连同小数部分一起存入</translation>
    </message>
    <message>
        <source>the number is stored as a text</source>
        <translation>数值以文本形式存入</translation>
    </message>
    <message>
        <source>the number is stored as true, or as false if it is 0</source>
        <translation>数值存为 true，为 0 时存为 false</translation>
    </message>
    <message>
        <source>the number is lost and the table is emptied</source>
        <translation>数值会丢失，表格会被清空</translation>
    </message>
    <message>
        <source>%1 names no variable</source>
        <translation>%1 没有对应的变量</translation>
    </message>
    <message>
        <source>%1 is the member %2 of %3, not the variable %4</source>
        <translation>%1 指的是 %3 的成员 %2，而不是变量 %4</translation>
    </message>
    <message>
        <source>give %1 a name without &quot;.&quot;</source>
        <translation>将 %1 改成不含 &quot;.&quot; 的名称</translation>
    </message>
    <message>
        <source>%1 asks for a member of %2, which is declared as %3</source>
        <translation>%1 要取 %2 的成员，但它的类型是%3</translation>
    </message>
    <message>
        <source>write %1; only lists and tables have members</source>
        <translation>改为 %1；只有列表和表格才有成员</translation>
    </message>
    <message>
        <source>write one of %1 behind the &quot;.&quot;</source>
        <translation>在 &quot;.&quot; 后面写 %1</translation>
    </message>
    <message>
        <source>a %1 has no member %2</source>
        <translation>%1没有成员 %2</translation>
    </message>
    <message>
        <source>%1 has no columns: its first element is no row</source>
        <translation>%1 没有列：它的第一个元素不是行</translation>
    </message>
    <message>
        <source>write %1 for how many elements it has, or start with a list of rows</source>
        <translation>要取元素个数请写 %1，或让初始值由行组成</translation>
    </message>
    <message>
        <source>%1 ends in &quot;.&quot;</source>
        <translation>%1 以 &quot;.&quot; 结尾</translation>
    </message>
    <message>
        <source>the operand is what %1 is, without a &quot;.&quot;</source>
        <translation>此处等同于 %1，不含 &quot;.&quot;</translation>
    </message>
    <message>
        <source>write %1; if the &quot;.&quot; is meant, put it behind in a step of its own</source>
        <translation>改为 %1；如果要的就是 &quot;.&quot;，另用一个步骤添加到后面</translation>
    </message>
    <message>
        <source>%1 is of type %2 where %3 is asked for</source>
        <translation>%1 的类型是%2，而此处要求%3</translation>
    </message>
    <message>
        <source>as a text it is its elements with &quot;, &quot; between them</source>
        <translation>作为文本时，是用 &quot;, &quot; 隔开的各个元素</translation>
    </message>
    <message>
        <source>make a text of it in a step of its own, or write %1 for how many elements it has</source>
        <translation>先另用一个步骤把它转成文本；要取元素个数则写 %1</translation>
    </message>
    <message>
        <source>the step takes it as it is, or cannot use it</source>
        <translation>步骤会原样取用，或无法使用</translation>
    </message>
    <message>
        <source>refer to a variable of type %1</source>
        <translation>引用一个类型为%1的变量</translation>
    </message>
    <message>
        <source>%1 is of type %2 where a number is asked for</source>
        <translation>%1 的类型是%2，而此处要求数值</translation>
    </message>
    <message>
        <source>true counts as 1, false as 0</source>
        <translation>true 按 1 计，false 按 0 计</translation>
    </message>
    <message>
        <source>refer to a number, or write %1 for how many elements it has</source>
        <translation>引用一个数值；要取元素个数则写 %1</translation>
    </message>
    <message>
        <source>%1 is %2, which is no number</source>
        <translation>%1 的值是 %2，不是数值</translation>
    </message>
    <message>
        <source>give %1 a number to start with</source>
        <translation>给 %1 一个数值作为初始值</translation>
    </message>
    <message>
        <source>scalar</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>steps[{index}]</source>
        <extracomment>{index} counts from 0 as task files do, {number} from 1; use one of them.</extracomment>
        <translation>第 {number} 步</translation>
    </message>
    <message>
        <source>{name}</source>
        <extracomment>{name} stands in task files, {label} in the editor; use one of them.</extracomment>
        <translation>“{label}”</translation>
    </message>
    <message>
        <source>int</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>double</source>
        <translation>小数</translation>
    </message>
    <message>
        <source>string</source>
        <translation>字符串</translation>
    </message>
    <message>
        <source>bool</source>
        <translation>布尔值</translation>
    </message>
    <message>
        <source>list</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>table</source>
        <translation>表格</translation>
    </message>
    <message>
        <source>%1,%2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>no number (of the bits %1)</source>
        <translation>非数值（各位为 %1）</translation>
    </message>
    <message>
        <source>the floating-point number %1</source>
        <translation>浮点数 %1</translation>
    </message>
    <message>
        <source>a null text</source>
        <translation>null 文本</translation>
    </message>
    <message>
        <source>the text %1</source>
        <translation>文本 %1</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>没有值</translation>
    </message>
    <message>
        <source>the 32-bit number %1</source>
        <translation>32 位整数 %1</translation>
    </message>
    <message>
        <source>the 64-bit number %1</source>
        <translation>64 位整数 %1</translation>
    </message>
    <message>
        <source>a list of length %1</source>
        <translation>长度为 %1 的列表</translation>
    </message>
    <message>
        <source>a value of the type %1</source>
        <translation>类型为 %1 的值</translation>
    </message>
    <message>
        <source>cannot be read (%1)</source>
        <translation>无法读取（%1）</translation>
    </message>
    <message>
        <source>it is built for interface version %1, this host has version %2</source>
        <translation>它针对接口版本 %1 构建，而本宿主的版本为 %2</translation>
    </message>
    <message>
        <source>it requires &quot;%1&quot;, which this host lacks</source>
        <translation>它需要 &quot;%1&quot;，而本宿主不具备</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>第 %1 行第 %2 列</translation>
    </message>
    <message>
        <source>malformed JSON (%1)</source>
        <translation>JSON 格式有误（%1）</translation>
    </message>
    <message>
        <source>%1; expected %2</source>
        <translation>此处是 %1；应为：%2</translation>
    </message>
    <message>
        <source>a whole number from -2147483648 to 2147483647</source>
        <translation>-2147483648 到 2147483647 之间的整数</translation>
    </message>
    <message>
        <source>a number, or one of &quot;inf&quot;, &quot;-inf&quot; and &quot;nan&quot;</source>
        <translation>数值，或 &quot;inf&quot;、&quot;-inf&quot;、&quot;nan&quot; 之一</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>字符串</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true 或 false</translation>
    </message>
    <message>
        <source>an array of strings, numbers, booleans and such arrays</source>
        <translation>由字符串、数值、布尔值及此类数组组成的数组</translation>
    </message>
    <message>
        <source>an array of rows, each an array</source>
        <translation>由行组成的数组，每行也是数组</translation>
    </message>
    <message>
        <source>a value of a known type</source>
        <translation>已知类型的值</translation>
    </message>
    <message>
        <source>missing; expected %1</source>
        <translation>缺失；应为：%1</translation>
    </message>
    <message>
        <source>cannot be loaded as a plug-in (%1)</source>
        <translation>无法作为插件加载（%1）</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>没有这个文件</translation>
    </message>
    <message>
        <source>its root object does not implement %1</source>
        <translation>其根对象未实现 %1</translation>
    </message>
    <message>
        <source>contributes &quot;%1&quot;, which is there already</source>
        <translation>所提供的 &quot;%1&quot; 已经存在</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>标准输出</translation>
    </message>
    <message>
        <source>cannot be written (%1)</source>
        <translation>无法写入（%1）</translation>
    </message>
    <message>
        <source>is cut off after %1 bytes; expected %2</source>
        <translation>在 %1 字节处被截断；应有 %2 字节</translation>
    </message>
    <message>
        <source>is cut off after %1 bytes; expected %2 or more</source>
        <translation>在 %1 字节处被截断；应至少有 %2 字节</translation>
    </message>
    <message>
        <source>is no packed task; expected the bytes %1 first</source>
        <translation>不是打包的任务；开头应为字节 %1</translation>
    </message>
    <message>
        <source>is of format %1; this program reads up to %2</source>
        <translation>格式版本为 %1；本程序最高支持 %2</translation>
    </message>
    <message>
        <source>is of format %1; the first is %2</source>
        <translation>格式版本为 %1；最早的版本是 %2</translation>
    </message>
    <message>
        <source>has %1 bytes; expected %2</source>
        <translation>共有 %1 字节；应有 %2 字节</translation>
    </message>
    <message>
        <source>has been altered; its checksum is that of other bytes</source>
        <translation>内容已被改动；校验和不符</translation>
    </message>
    <message>
        <source>has records of stream version %1; this program reads up to %2</source>
        <translation>记录的流版本为 %1；本程序最高支持 %2</translation>
    </message>
    <message>
        <source>has records of stream version 0; expected a version from 1 to %1</source>
        <translation>记录的流版本为 0；应为 1 到 %1</translation>
    </message>
    <message>
        <source>more than %1 lists within each other; expected fewer</source>
        <translation>列表嵌套超过 %1 层；层数应更少</translation>
    </message>
    <message>
        <source>%1; expected a text, a number, true or false, or a list</source>
        <translation>此处是 %1；应为：文本、数值、true 或 false、列表</translation>
    </message>
    <message>
        <source>a list of length %1; there is room for %2</source>
        <translation>列表长度为 %1；余下的字节最多容纳 %2</translation>
    </message>
    <message>
        <source>a value of kind %1; expected a kind from %2 to %3</source>
        <translation>值的种类为 %1；应为 %2 到 %3</translation>
    </message>
    <message>
        <source>a value beyond the end, or a text of half letters</source>
        <translation>值超出末尾，或文本含有半个字符</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>an empty file name; expected a file</source>
        <translation>文件名为空；请指定文件</translation>
    </message>
    <message>
        <source>a number or a string</source>
        <translation>数值或字符串</translation>
    </message>
    <message>
        <source>one of %1, or the number of a choice</source>
        <translation>%1 之一，或选项的编号</translation>
    </message>
    <message>
        <source>nothing: a property of type %1 cannot stand in a task file</source>
        <translation>空缺（类型为 %1 的属性不能出现在任务文件中）</translation>
    </message>
    <message>
        <source>%1; as JSON it would come back as %2</source>
        <translation>此处是 %1；经 JSON 读回会变成 %2</translation>
    </message>
    <message>
        <source>%1 of them; from JSON %2 would come back</source>
        <translation>共 %1 个；经 JSON 会读回 %2 个</translation>
    </message>
    <message>
        <source>%1 keeps more than its properties; JSON has only these</source>
        <translation>%1 除属性外还保存了别的内容；JSON 只能保存属性</translation>
    </message>
    <message>
        <source>an empty name; expected a name</source>
        <translation>名称为空；应有名称</translation>
    </message>
    <message>
        <source>the task has no variable %1; expected none at all</source>
        <translation>任务中没有变量 %1；它没有任何变量</translation>
    </message>
    <message>
        <source>the task has no variable %1; expected %2</source>
        <translation>任务中没有变量 %1；应为：%2</translation>
    </message>
    <message>
        <source>unknown key %1; expected %2</source>
        <translation>未知的键 %1；应为：%2</translation>
    </message>
    <message>
        <source>an object with &quot;type&quot; and &quot;value&quot;</source>
        <translation>含 &quot;type&quot; 和 &quot;value&quot; 的对象</translation>
    </message>
    <message>
        <source>an object of variables</source>
        <translation>由变量组成的对象</translation>
    </message>
    <message>
        <source>%1 has no such property; expected %2</source>
        <translation>%1 没有此属性；应为：%2</translation>
    </message>
    <message>
        <source>an array of steps</source>
        <translation>由步骤组成的数组</translation>
    </message>
    <message>
        <source>an object with &quot;type&quot; and properties</source>
        <translation>含 &quot;type&quot; 和属性的对象</translation>
    </message>
    <message>
        <source>%1 cannot read its record of %2 bytes; it ends too early</source>
        <translation>%1 无法读取其 %2 字节的记录；记录提前结束</translation>
    </message>
    <message>
        <source>%1 cannot read its record of %2 bytes; it makes no sense</source>
        <translation>%1 无法读取其 %2 字节的记录；记录内容有误</translation>
    </message>
    <message>
        <source>%1 cannot read its record of %2 bytes; it has %3 bytes too many</source>
        <translation>%1 无法读取其 %2 字节的记录；记录多出 %3 字节</translation>
    </message>
    <message>
        <source>%1 bytes behind the last; expected none</source>
        <translation>末尾之后还有 %1 字节；不应有多余内容</translation>
    </message>
    <message>
        <source>%1 of them; there is room for %2 at most</source>
        <translation>数目为 %1；余下的字节最多容纳 %2 个</translation>
    </message>
    <message>
        <source>a name beyond the end, or of half letters</source>
        <translation>名称超出末尾，或含有半个字符</translation>
    </message>
    <message>
        <source>a type beyond the end, or of half letters</source>
        <translation>类型超出末尾，或含有半个字符</translation>
    </message>
    <message>
        <source>a record of %1 bytes; there is room for %2</source>
        <translation>记录长 %1 字节；余下的字节只有 %2</translation>
    </message>
    <message>
        <source>a 32-bit number</source>
        <translation>32 位整数</translation>
    </message>
    <message>
        <source>a floating-point number</source>
        <translation>浮点数</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>a list of rows, each a list</source>
        <translation>由行组成的列表，每行也是列表</translation>
    </message>
    <message>
        <source>a name that stands there already; expected another</source>
        <translation>名称已被使用；请换一个</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <comment>texts in quotes</comment>
        <translation>%1 或 %2</translation>
    </message>
    <message>
        <source>no translation that can be used; texts of the plug-in stay as they are in its sources</source>
        <translation>翻译文件无法使用；插件的文字保持源代码中的样子</translation>
    </message>
    <message>
        <source>%1 gets another value here, between %2 and %3, which both read it</source>
        <translation>%1 在此被换成别的值，而它前后的%2和%3都读取它</translation>
    </message>
    <message>
        <source>%1 reads this result, not the start value</source>
        <translation>%1读到的是这个结果，而不是初始值</translation>
    </message>
    <message>
        <source>name another variable here, if %1 needs the start value</source>
        <translation>如果%1需要的是初始值，此处改用别的变量</translation>
    </message>
    <message>
        <source>the step takes it for a negative number</source>
        <translation>步骤把它当作负数</translation>
    </message>
    <message>
        <source>%1 counts as a number</source>
        <translation>%1 会被当作数值</translation>
    </message>
    <message>
        <source>the step goes on with the number %1, with no warning</source>
        <translation>步骤不给警告，直接以数值 %1 继续</translation>
    </message>
    <message>
        <source>write digits, if another number is meant</source>
        <translation>如果要的是别的数值，请写数字</translation>
    </message>
    <message>
        <source>%1 is beyond 32 bits</source>
        <translation>%1 超出 32 位整数的范围</translation>
    </message>
    <message>
        <source>write a number from -2147483648 to 2147483647</source>
        <translation>改为 -2147483648 到 2147483647 之间的数</translation>
    </message>
    <message>
        <source>%1 is beyond 32 bits, and %2 is declared as %3</source>
        <translation>%1 超出 32 位整数的范围，而 %2 的类型是%3</translation>
    </message>
    <message>
        <source>another number is stored, with no warning</source>
        <translation>存入的会是另一个数，而且没有警告</translation>
    </message>
    <message>
        <source>declare %1 as %2</source>
        <translation>把 %1 的类型改为%2</translation>
    </message>
    <message>
        <source>the step reads no number, as a rule with a warning</source>
        <translation>步骤得不到数值，通常会给出警告</translation>
    </message>
    <message>
        <source>no separator is given</source>
        <translation>没有填写分隔符</translation>
    </message>
    <message>
        <source>the text stays in one piece</source>
        <translation>文本不会被分开</translation>
    </message>
    <message>
        <source>write the text that stands between the pieces</source>
        <translation>填写各段之间的文本</translation>
    </message>
    <message>
        <source>no marker is given</source>
        <translation>没有填写标识</translation>
    </message>
    <message>
        <source>an empty marker is found at once, where the search begins</source>
        <translation>空的标识总在开始查找的位置立即找到</translation>
    </message>
    <message>
        <source>write the text that stands at this place</source>
        <translation>填写该位置上的文本</translation>
    </message>
    <message>
        <source>no text to search for is given</source>
        <translation>没有填写要查找的文本</translation>
    </message>
    <message>
        <source>an empty text is found at the start and between all characters</source>
        <translation>空文本在开头和每两个字符之间都能找到</translation>
    </message>
    <message>
        <source>write the text to search for</source>
        <translation>填写要查找的文本</translation>
    </message>
    <message>
        <source>%1 is written as a pattern</source>
        <translation>%1 写成了匹配模式</translation>
    </message>
    <message>
        <source>these characters themselves are searched for: operands have no patterns and no wildcards</source>
        <translation>查找的就是这些字符本身：操作数不支持正则表达式和通配符</translation>
    </message>
    <message>
        <source>write the text itself; if these characters are meant, leave them</source>
        <translation>改为文本本身；如果要找的就是这些字符，则不用改</translation>
    </message>
    <message>
        <source>%1 is not in the text, but %2 is</source>
        <translation>文本中没有 %1，但有 %2</translation>
    </message>
    <message>
        <source>nothing is found: full-width and half-width characters differ</source>
        <translation>找不到：全角字符和半角字符不同</translation>
    </message>
    <message>
        <source>%1 has a full-width &quot;$&quot;</source>
        <translation>%1 中的 &quot;$&quot; 是全角的</translation>
    </message>
    <message>
        <source>it is no reference: the text stays as it is</source>
        <translation>这不是引用，文本原样不变</translation>
    </message>
    <message>
        <source>%1 is %2 if %3 does not find its text</source>
        <translation>如果%3没有找到，%1 就是 %2</translation>
    </message>
    <message>
        <source>the step starts at %1 then, as if that were a position</source>
        <translation>这时步骤仍以 %1 作为起始位置</translation>
    </message>
    <message>
        <source>use it for texts that always have what is searched for, or cut at a marker</source>
        <translation>只用于一定含有所找内容的文本，或改为按标识截取</translation>
    </message>
    <message>
        <source>unknown key; expected %1</source>
        <translation>未知的键；应为 %1</translation>
    </message>
    <message>
        <source>no purpose for this property</source>
        <translation>此属性不能有用途</translation>
    </message>
    <message>
        <source>the property with the text searched in</source>
        <translation>被查找的文本所在的属性</translation>
    </message>
    <message>
        <source>a number, at a numeric operand</source>
        <translation>数值，且属性为数值操作数</translation>
    </message>
    <message>
        <source>a number, at the result variable</source>
        <translation>数值，且属性为结果变量</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>the name of a language</source>
        <translation>语言名称</translation>
    </message>
    <message>
        <source>a marker that the line has, too</source>
        <translation>该行也有的标记</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>数组</translation>
    </message>
    <message>
        <source>no such operation; expected %1</source>
        <translation>没有这个操作；应为 %1</translation>
    </message>
    <message>
        <source>%1… (%2 characters)</source>
        <translation>%1……（共 %2 个字符）</translation>
    </message>
    <message>
        <source>it is not a library</source>
        <translation>此文件不是库</translation>
    </message>
    <message>
        <source>it is a library for %1; expected one for %2</source>
        <translation>此库适用于 %1；应适用于 %2</translation>
    </message>
    <message>
        <source>it is a folder; expected a file</source>
        <translation>这是文件夹；应为文件</translation>
    </message>
    <message>
        <source>it is a device or a pipe; expected a file</source>
        <translation>这是设备或管道；应为文件</translation>
    </message>
    <message>
        <source>it is a link to a file that does not exist</source>
        <translation>这是链接，它指向的文件不存在</translation>
    </message>
    <message>
        <source>it cannot be read: %1</source>
        <translation>无法读取：%1</translation>
    </message>
    <message>
        <source>it is an empty file</source>
        <translation>文件为空</translation>
    </message>
    <message>
        <source>createPrototypes returns no operation; expected at least one</source>
        <translation>createPrototypes 没有返回操作；至少应有一个</translation>
    </message>
    <message>
        <source>createPrototypes returns a null pointer at %1; expected an operation</source>
        <translation>createPrototypes 返回的第 %1 项（从 0 开始计数）是空指针；应为操作</translation>
    </message>
    <message>
        <source>createPrototypes returns the same object at %1 and at %2; expected two objects</source>
        <translation>createPrototypes 返回的第 %1 项和第 %2 项（从 0 开始计数）是同一个对象；应为两个对象</translation>
    </message>
    <message>
        <source>%1 (did you mean %2?)</source>
        <translation>%1（是否指 %2？）</translation>
    </message>
    <message>
        <source>argument %1</source>
        <translation>第 %1 个参数</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not UTF-8; expected UTF-8</source>
        <translation>“%1”不是 UTF-8；应为 UTF-8</translation>
    </message>
    <message>
        <source>an operation, but none is loaded</source>
        <translation>操作，但没有加载任何操作</translation>
    </message>
    <message>
        <source>a number of at most 1.7976931348623157e308</source>
        <translation>绝对值不超过 1.7976931348623157e308 的数值</translation>
    </message>
    <message>
        <source>the key %1 for the second time; expected each key once</source>
        <translation>键 %1 第二次出现；每个键只能出现一次</translation>
    </message>
    <message>
        <source>more than %1 arrays and objects within each other</source>
        <translation>数组和对象嵌套超过 %1 层</translation>
    </message>
    <message>
        <source>the end of the text</source>
        <translation>文本末尾</translation>
    </message>
    <message>
        <source>&quot; at the end of a string</source>
        <translation>字符串末尾的 &quot;</translation>
    </message>
    <message>
        <source>the control character U+%1 within a string; expected an escape</source>
        <translation>字符串中有控制字符 U+%1；应写成转义</translation>
    </message>
    <message>
        <source>%1 is no escape; expected four hexadecimal digits after \u</source>
        <translation>%1 不是转义；\u 之后应有四位十六进制数字</translation>
    </message>
    <message>
        <source>%1 is no escape; expected \\ for a backslash</source>
        <translation>%1 不是转义；反斜杠应写成 \\</translation>
    </message>
    <message>
        <source>a key in double quotes</source>
        <translation>双引号括起的键</translation>
    </message>
    <message>
        <source>&quot;:&quot; after a key</source>
        <translation>键之后的 &quot;:&quot;</translation>
    </message>
    <message>
        <source>&quot;,&quot; or &quot;}&quot; after a member</source>
        <translation>成员之后的 &quot;,&quot; 或 &quot;}&quot;</translation>
    </message>
    <message>
        <source>&quot;,&quot; or &quot;]&quot; after an element</source>
        <translation>元素之后的 &quot;,&quot; 或 &quot;]&quot;</translation>
    </message>
    <message>
        <source>a digit after the decimal point</source>
        <translation>小数点之后的数字</translation>
    </message>
    <message>
        <source>a digit in the exponent</source>
        <translation>指数中的数字</translation>
    </message>
    <message>
        <source>a value</source>
        <translation>一个值</translation>
    </message>
    <message>
        <source>bytes that are not UTF-8</source>
        <translation>不是 UTF-8 的字节</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>an object in braces</source>
        <translation>花括号括起的对象</translation>
    </message>
    <message>
        <source>an empty text</source>
        <translation>空文本</translation>
    </message>
    <message>
        <source>a whole number from -9223372036854775808 to 9223372036854775807, or a string such as %1</source>
        <translation>-9223372036854775808 到 9223372036854775807 之间的整数，或 %1 这样的字符串</translation>
    </message>
    <message>
        <source>from JSON %1 would come back in its place</source>
        <translation>从 JSON 读回时，此处会是 %1</translation>
    </message>
    <message>
        <source>%1 has no such property; expected none at all</source>
        <translation>%1 没有此属性，也没有任何其他属性</translation>
    </message>
    <message>
        <source>it is a link to a name that is not UTF-8</source>
        <translation>这是链接，它指向的名称不是 UTF-8</translation>
    </message>
    <message>
        <source>; &quot;--extra ignore&quot; drops such keys, &quot;--extra keep&quot; prints them</source>
        <translation>；&quot;--extra ignore&quot; 丢弃这些键，&quot;--extra keep&quot; 原样输出它们</translation>
    </message>
    <message>
        <source>the task has no variables %1; expected none at all</source>
        <translation>任务中没有变量 %1；它没有任何变量</translation>
    </message>
    <message>
        <source>the task has no variables %1; expected %2</source>
        <translation>任务中没有变量 %1；应为：%2</translation>
    </message>
    <message>
        <source>%1… (%2 characters) …%3</source>
        <translation>%1……（共 %2 个字符）……%3</translation>
    </message>
    <message>
        <source>the type is that of the page; expected properties</source>
        <translation>类型由页面决定；应为属性</translation>
    </message>
    <message>
        <source>the result is declared by &quot;into&quot;; expected other names</source>
        <translation>结果变量由 &quot;into&quot; 声明；应为其他名称</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>第 %1 行</translation>
    </message>
    <message>
        <source>the row does not fit into memory</source>
        <translation>内存不足，无法容纳该行</translation>
    </message>
    <message>
        <source>bytes that are no text; expected UTF-8</source>
        <translation>这些字节不是文本；应为：UTF-8</translation>
    </message>
    <message>
        <source>the value of %1 has a line break; expected one line, or &quot;--json&quot; to print it as JSON</source>
        <translation>%1 的值含有换行；应为一行，或用 &quot;--json&quot; 以 JSON 输出</translation>
    </message>
    <message>
        <source>the name of the working folder is not UTF-8</source>
        <translation>工作文件夹的名称不是 UTF-8</translation>
    </message>
</context>
</TS>
