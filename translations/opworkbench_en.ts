<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>Engine</name>
    <message>
        <source>scalar</source>
        <translation>scalar</translation>
    </message>
    <message>
        <source>steps[{index}]</source>
        <extracomment>{index} counts from 0 as task files do, {number} from 1; use one of them.</extracomment>
        <translation>step {number}</translation>
    </message>
    <message>
        <source>{name}</source>
        <extracomment>{name} stands in task files, {label} in the editor; use one of them.</extracomment>
        <translation>&quot;{label}&quot;</translation>
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
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 or %2</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>操作</source>
        <translation>Operations</translation>
    </message>
    <message>
        <source>编辑</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>上次运行</source>
        <translation>Last Run</translation>
    </message>
    <message>
        <source>变量</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>日志</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>检查</source>
        <translation>Findings</translation>
    </message>
    <message>
        <source>文件(&amp;F)</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>运行(&amp;R)</source>
        <translation>&amp;Run</translation>
    </message>
    <message>
        <source>运行</source>
        <translation>Run</translation>
    </message>
    <message>
        <source>编辑(&amp;E)</source>
        <translation>&amp;Edit</translation>
    </message>
</context>
</TS>
