<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>CountOccurrencesOperation</name>
    <message>
        <source>原文本</source>
        <translation>Source text</translation>
    </message>
    <message>
        <source>要统计的文本</source>
        <translation>Text to count</translation>
    </message>
    <message>
        <source>大小写</source>
        <translation>Letter case</translation>
    </message>
    <message>
        <source>统计范围</source>
        <translation>Range</translation>
    </message>
    <message>
        <source>字符数</source>
        <translation>Characters</translation>
    </message>
    <message>
        <source>次数保存到整型变量</source>
        <translation>Store count in integer variable</translation>
    </message>
    <message>
        <source>区分大小写</source>
        <translation>Match case</translation>
    </message>
    <message>
        <source>忽略大小写</source>
        <translation>Ignore case</translation>
    </message>
    <message>
        <source>整个文本</source>
        <translation>Whole text</translation>
    </message>
    <message>
        <source>开头若干字符</source>
        <translation>Beginning of the text</translation>
    </message>
    <message>
        <source>统计</source>
        <translation>Counting</translation>
    </message>
    <message>
        <source>统计出现次数</source>
        <translation>Count occurrences</translation>
    </message>
    <message>
        <source>统计 %1 在 %2 中出现的次数，存入 %3</source>
        <translation>Count how often %1 occurs in %2, store in %3</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>统计插件</source>
        <translation>Counting plug-in</translation>
    </message>
</context>
</TS>
