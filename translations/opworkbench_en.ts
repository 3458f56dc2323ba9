<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>AboutText</name>
    <message>
        <source>操作工作台 %1（Qt %2）</source>
        <translation>Operation Workbench %1 (Qt %2)</translation>
    </message>
    <message>
        <source>编辑、运行和检查由操作插件提供的步骤。</source>
        <translation>Edits, runs and checks the steps that operation plug-ins provide.</translation>
    </message>
</context>
<context>
    <name>CatalogModel</name>
    <message>
        <source>设置：%1</source>
        <translation>Settings: %1</translation>
    </message>
    <message>
        <source>未能加载</source>
        <translation>Not loaded</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>CatalogPanel</name>
    <message>
        <source>筛选操作</source>
        <translation>Filter operations</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Operations</translation>
    </message>
    <message>
        <source>没有匹配的操作</source>
        <translation>No operation matches</translation>
    </message>
    <message>
        <source>没有加载任何插件</source>
        <translation>No plug-in is loaded</translation>
    </message>
    <message>
        <source>添加步骤(&amp;A)</source>
        <translation>&amp;Add step</translation>
    </message>
    <message>
        <source>复制原因(&amp;C)</source>
        <translation>&amp;Copy reason</translation>
    </message>
</context>
<context>
    <name>CellKind</name>
    <message>
        <source>这里需要一个整数；要填别的内容，请先改变单元格的类型。</source>
        <translation>A whole number is expected here; to enter something else, change the type of the cell first.</translation>
    </message>
    <message>
        <source>这个单元格的内容不能修改。</source>
        <translation>The content of this cell cannot be changed.</translation>
    </message>
</context>
<context>
    <name>ChoiceEditor</name>
    <message>
        <source>%1（不在列表中）</source>
        <translation>%1 (not in the list)</translation>
    </message>
    <message>
        <source>这个值不是任何选项，会保留到另选一项为止</source>
        <translation>This value is none of the choices; it stays until another is chosen</translation>
    </message>
</context>
<context>
    <name>DialogQuestions</name>
    <message>
        <source>操作工作台</source>
        <translation>Operation Workbench</translation>
    </message>
    <message>
        <source>任务“%1”已修改。</source>
        <translation>The task &quot;%1&quot; has been changed.</translation>
    </message>
    <message>
        <source>要保存修改吗？不保存的话，修改将会丢失。</source>
        <translation>Save the changes? They will be lost otherwise.</translation>
    </message>
    <message>
        <source>保存(&amp;S)</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>不保存(&amp;D)</source>
        <translation>&amp;Don&apos;t save</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>打开任务</source>
        <translation>Open task</translation>
    </message>
    <message>
        <source>任务 (*.json *.task);;所有文件 (*)</source>
        <translation>Tasks (*.json *.task);;All files (*)</translation>
    </message>
    <message>
        <source>JSON 任务 (*.json)</source>
        <translation>JSON task (*.json)</translation>
    </message>
    <message>
        <source>打包任务 (*.task)</source>
        <translation>Packed task (*.task)</translation>
    </message>
    <message>
        <source>任务另存为</source>
        <translation>Save task as</translation>
    </message>
    <message>
        <source>文件“%1”已被其他程序修改。</source>
        <translation>Another program has changed the file &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>覆盖它会丢失那些修改。</source>
        <translation>Overwriting it loses those changes.</translation>
    </message>
    <message>
        <source>另存为(&amp;A)…</source>
        <translation>Save &amp;as…</translation>
    </message>
    <message>
        <source>覆盖(&amp;O)</source>
        <translation>&amp;Overwrite</translation>
    </message>
    <message>
        <source>JSON 无法准确保存这个任务。</source>
        <translation>JSON cannot hold this task exactly.</translation>
    </message>
    <message>
        <source>%1

打包格式可以准确保存。</source>
        <translation>%1

The packed format can.</translation>
    </message>
    <message>
        <source>保存为打包格式(&amp;P)…</source>
        <translation>Save &amp;packed…</translation>
    </message>
    <message>
        <source>仍然保存为 JSON(&amp;J)</source>
        <translation>Save as &amp;JSON anyway</translation>
    </message>
    <message>
        <source>要重新载入吗？</source>
        <translation>Reload it?</translation>
    </message>
    <message>
        <source>重新载入(&amp;R)</source>
        <translation>&amp;Reload</translation>
    </message>
    <message>
        <source>保持现状(&amp;K)</source>
        <translation>&amp;Keep as it is</translation>
    </message>
    <message>
        <source>有一个没有保存过的任务可以恢复。</source>
        <translation>A task that was never saved can be recovered.</translation>
    </message>
    <message>
        <source>任务“%1”有未保存的修改可以恢复。</source>
        <translation>Unsaved changes of the task &quot;%1&quot; can be recovered.</translation>
    </message>
    <message>
        <source>丢弃(&amp;D)</source>
        <translation>&amp;Discard</translation>
    </message>
    <message>
        <source>以后再说(&amp;L)</source>
        <translation>&amp;Later</translation>
    </message>
    <message>
        <source>最后修改于 %1。现在无法恢复，会一直保留：

%2</source>
        <translation>Last changed %1. It cannot be recovered now, and is kept:

%2</translation>
    </message>
    <message>
        <source>最后修改于 %1。</source>
        <translation>Last changed %1.</translation>
    </message>
    <message>
        <source>恢复(&amp;R)</source>
        <translation>&amp;Recover</translation>
    </message>
    <message>
        <source>无法打开任务。</source>
        <translation>The task cannot be opened.</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>无法保存任务。</source>
        <translation>The task cannot be saved.</translation>
    </message>
</context>
<context>
    <name>EditActions</name>
    <message>
        <source>撤销“%1”(&amp;U)</source>
        <translation>&amp;Undo: %1</translation>
    </message>
    <message>
        <source>撤销(&amp;U)</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>重做“%1”(&amp;R)</source>
        <translation>&amp;Redo: %1</translation>
    </message>
    <message>
        <source>重做(&amp;R)</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>Redo</translation>
    </message>
</context>
<context>
    <name>EditorPanel</name>
    <message>
        <source>选择一个步骤来编辑，或从操作列表添加一个。</source>
        <translation>Select a step to edit, or add one from the operations.</translation>
    </message>
</context>
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
    <name>FileActions</name>
    <message>
        <source>无法备份未保存的修改：%1</source>
        <translation>Cannot back up unsaved changes: %1</translation>
    </message>
    <message>
        <source>新建(&amp;N)</source>
        <translation>&amp;New</translation>
    </message>
    <message>
        <source>打开(&amp;O)…</source>
        <translation>&amp;Open…</translation>
    </message>
    <message>
        <source>保存(&amp;S)</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>另存为(&amp;A)…</source>
        <translation>Save &amp;as…</translation>
    </message>
    <message>
        <source>恢复未保存的任务(&amp;V)…</source>
        <translation>Reco&amp;ver unsaved tasks…</translation>
    </message>
    <message>
        <source>退出(&amp;Q)</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>没有可以恢复的任务</source>
        <translation>There is no task to recover</translation>
    </message>
    <message>
        <source>最近的文件(&amp;R)</source>
        <translation>&amp;Recent files</translation>
    </message>
    <message>
        <source>（无）</source>
        <translation>(none)</translation>
    </message>
    <message>
        <source>清除记录(&amp;C)</source>
        <translation>&amp;Clear list</translation>
    </message>
    <message>
        <source>已保存 %1</source>
        <translation>Saved %1</translation>
    </message>
    <message>
        <source>%1[*] — 操作工作台</source>
        <translation>%1[*] — Operation Workbench</translation>
    </message>
    <message>
        <source>未命名</source>
        <translation>Untitled</translation>
    </message>
</context>
<context>
    <name>FindingsModel</name>
    <message>
        <source>%1
%2
%3</source>
        <translation>%1
%2
%3</translation>
    </message>
    <message>
        <source>步骤</source>
        <translation>Step</translation>
    </message>
    <message>
        <source>位置</source>
        <translation>Place</translation>
    </message>
    <message>
        <source>问题</source>
        <translation>Finding</translation>
    </message>
</context>
<context>
    <name>FindingsPanel</name>
    <message>
        <source>没有发现问题</source>
        <translation>No findings</translation>
    </message>
    <message>
        <source>检查</source>
        <translation>Findings</translation>
    </message>
    <message>
        <source>步骤</source>
        <translation>Step</translation>
    </message>
</context>
<context>
    <name>GridModel</name>
    <message>
        <source>值</source>
        <translation>Value</translation>
    </message>
</context>
<context>
    <name>ListGrid</name>
    <message>
        <source>复制</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>打开单元格…</source>
        <translation>Open cell…</translation>
    </message>
    <message>
        <source>添加行</source>
        <translation>Add row</translation>
    </message>
    <message>
        <source>删除行</source>
        <translation>Delete row</translation>
    </message>
    <message>
        <source>上移行</source>
        <translation>Move row up</translation>
    </message>
    <message>
        <source>下移行</source>
        <translation>Move row down</translation>
    </message>
    <message>
        <source>添加列</source>
        <translation>Add column</translation>
    </message>
    <message>
        <source>删除列</source>
        <translation>Delete column</translation>
    </message>
    <message>
        <source>从此格起截去本行</source>
        <translation>Cut row off from here</translation>
    </message>
    <message>
        <source>粘贴</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>清空单元格</source>
        <translation>Clear cells</translation>
    </message>
    <message>
        <source>所选单元格的类型</source>
        <translation>Type of the selected cells</translation>
    </message>
    <message>
        <source>单元格类型(&amp;K)</source>
        <translation>Cell t&amp;ype</translation>
    </message>
    <message>
        <source>这个单元格已经不存在。</source>
        <translation>This cell no longer exists.</translation>
    </message>
    <message>
        <source>%1 — 第 %2 行</source>
        <translation>%1 — row %2</translation>
    </message>
    <message>
        <source>%1 行，%2 列</source>
        <translation>Rows: %1, columns: %2</translation>
    </message>
    <message>
        <source>%1 项</source>
        <translation>Items: %1</translation>
    </message>
</context>
<context>
    <name>LogModel</name>
    <message>
        <source>步骤</source>
        <translation>Step</translation>
    </message>
    <message>
        <source>内容</source>
        <translation>What happened</translation>
    </message>
    <message>
        <source>写入</source>
        <translation>Written</translation>
    </message>
    <message>
        <source>用时</source>
        <translation>Time</translation>
    </message>
</context>
<context>
    <name>LogPanel</name>
    <message>
        <source>日志</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>步骤</source>
        <translation>Step</translation>
    </message>
    <message>
        <source>只看警告(&amp;W)</source>
        <translation>&amp;Warnings only</translation>
    </message>
    <message>
        <source>复制所选行</source>
        <translation>Copy selected lines</translation>
    </message>
    <message>
        <source>保存日志…</source>
        <translation>Save log…</translation>
    </message>
    <message>
        <source>清空日志</source>
        <translation>Clear log</translation>
    </message>
    <message>
        <source>保存日志</source>
        <translation>Save log</translation>
    </message>
    <message>
        <source>文本文件 (*.txt)</source>
        <translation>Text files (*.txt)</translation>
    </message>
    <message>
        <source>无法写入文件 %1。</source>
        <translation>The file %1 cannot be written.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>操作</source>
        <translation>Operations</translation>
    </message>
    <message>
        <source>上次运行</source>
        <translation>Last run</translation>
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
        <source>编辑(&amp;E)</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>；</source>
        <translation>; </translation>
    </message>
    <message>
        <source>下次启动时使用所选的语言。</source>
        <translation>The chosen language is used from the next start on.</translation>
    </message>
    <message>
        <source>编辑步骤</source>
        <translation>Edit step</translation>
    </message>
    <message>
        <source>变量(&amp;B)</source>
        <translation>Varia&amp;bles</translation>
    </message>
    <message>
        <source>帮助(&amp;H)</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>关于(&amp;A)</source>
        <translation>&amp;About</translation>
    </message>
    <message>
        <source>文件工具栏</source>
        <translation>File toolbar</translation>
    </message>
    <message>
        <source>编辑工具栏</source>
        <translation>Edit toolbar</translation>
    </message>
    <message>
        <source>运行工具栏</source>
        <translation>Run toolbar</translation>
    </message>
    <message>
        <source>关于操作工作台</source>
        <translation>About Operation Workbench</translation>
    </message>
    <message>
        <source>步骤</source>
        <translation>Steps</translation>
    </message>
</context>
<context>
    <name>MessageLine</name>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>NewVariableDialog</name>
    <message>
        <source>变量</source>
        <translation>variable</translation>
    </message>
    <message>
        <source>新建变量</source>
        <translation>New variable</translation>
    </message>
    <message>
        <source>新建</source>
        <translation>Create</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>名称(&amp;N)：</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>类型(&amp;T)：</source>
        <translation>&amp;Type:</translation>
    </message>
</context>
<context>
    <name>NumberOperandEditor</name>
    <message>
        <source>没有填写数字</source>
        <translation>No number is given</translation>
    </message>
    <message>
        <source>%1；这不是数字</source>
        <translation>%1; this is no number</translation>
    </message>
    <message>
        <source>%1；true 算作 1，false 算作 0</source>
        <translation>%1; true counts as 1, false as 0</translation>
    </message>
    <message>
        <source>超出 32 位整数的范围</source>
        <translation>Beyond the range of 32-bit numbers</translation>
    </message>
    <message>
        <source>将截为整数 %1</source>
        <translation>Is cut to the whole number %1</translation>
    </message>
    <message>
        <source>“%1”不是数字</source>
        <translation>&quot;%1&quot; is no number</translation>
    </message>
    <message>
        <source>改为 %1</source>
        <translation>Change to %1</translation>
    </message>
</context>
<context>
    <name>OperandEditor</name>
    <message>
        <source>这段文本有 %1 个单元，这里只显示开头，不能直接编辑。</source>
        <translation>This text has %1 units; only its beginning is shown, and it cannot be edited here.</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>新建此变量</source>
        <translation>Create this variable</translation>
    </message>
    <message>
        <source>插入变量或特殊字符（Alt+↓）</source>
        <translation>Insert a variable or special character (Alt+↓)</translation>
    </message>
    <message>
        <source>插入变量或特殊字符</source>
        <translation>Insert a variable or special character</translation>
    </message>
    <message>
        <source>新建变量…</source>
        <translation>New variable…</translation>
    </message>
    <message>
        <source>插入特殊字符</source>
        <translation>Insert special character</translation>
    </message>
    <message>
        <source>其他类型</source>
        <translation>Other types</translation>
    </message>
    <message>
        <source>还没有变量</source>
        <translation>No variables yet</translation>
    </message>
    <message>
        <source>制表符</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>换行（Shift+Enter）</source>
        <translation>Line feed (Shift+Enter)</translation>
    </message>
    <message>
        <source>回车</source>
        <translation>Carriage return</translation>
    </message>
    <message>
        <source>不换行空格</source>
        <translation>No-break space</translation>
    </message>
    <message>
        <source>全角空格</source>
        <translation>Full-width space</translation>
    </message>
    <message>
        <source>零宽空格</source>
        <translation>Zero-width space</translation>
    </message>
    <message>
        <source>零宽不换行空格</source>
        <translation>Zero-width no-break space</translation>
    </message>
    <message>
        <source>空字符</source>
        <translation>Null character</translation>
    </message>
</context>
<context>
    <name>OperandsPanel</name>
    <message>
        <source>上次运行</source>
        <translation>Last run</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>写的</source>
        <translation>As written</translation>
    </message>
    <message>
        <source>读到的</source>
        <translation>As read</translation>
    </message>
    <message>
        <source>复制完整的值(&amp;C)</source>
        <translation>&amp;Copy whole value</translation>
    </message>
    <message>
        <source>没有选中步骤</source>
        <translation>No step is selected</translation>
    </message>
    <message>
        <source>此步骤还没有运行</source>
        <translation>This step has not run yet</translation>
    </message>
    <message>
        <source>用时 %1。此步骤在运行之后修改过，下面是修改之前的结果。</source>
        <translation>Took %1. The step was changed after it ran; this is from before the change.</translation>
    </message>
    <message>
        <source>用时 %1</source>
        <translation>Took %1</translation>
    </message>
    <message>
        <source>操作数</source>
        <translation>Operands</translation>
    </message>
    <message>
        <source>写入的变量</source>
        <translation>Variables written</translation>
    </message>
    <message>
        <source>警告</source>
        <translation>Warnings</translation>
    </message>
    <message>
        <source>%1（不是数值）</source>
        <translation>%1 (no number)</translation>
    </message>
</context>
<context>
    <name>PlainEditor</name>
    <message>
        <source>类型为 %1，不能在这里编辑</source>
        <translation>Is of type %1 and cannot be edited here</translation>
    </message>
    <message>
        <source>这段文本有 %1 个单元，这里只显示开头，不能直接编辑。</source>
        <translation>This text has %1 units; only its beginning is shown, and it cannot be edited here.</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>这不是 32 位整数，值没有改变</source>
        <translation>This is no 32-bit number; the value is unchanged</translation>
    </message>
    <message>
        <source>这不是数字，值没有改变</source>
        <translation>This is no number; the value is unchanged</translation>
    </message>
</context>
<context>
    <name>PluginLibrary</name>
    <message>
        <source>文件不完整</source>
        <translation>the file is incomplete</translation>
    </message>
    <message>
        <source>无法在临时文件夹中建立副本</source>
        <translation>cannot be copied to the temporary folder</translation>
    </message>
    <message>
        <source>缺少任务用到的操作“%1”</source>
        <translation>lacks the operation &quot;%1&quot;, which the task uses</translation>
    </message>
    <message>
        <source>已重新加载 %1</source>
        <translation>Reloaded %1</translation>
    </message>
    <message>
        <source>已加载 %1</source>
        <translation>Loaded %1</translation>
    </message>
    <message>
        <source>%1；继续使用之前的版本</source>
        <translation>%1; the previous version stays in use</translation>
    </message>
    <message>
        <source>无法重新加载 %1，继续使用之前的版本</source>
        <translation>Cannot reload %1; the previous version stays in use</translation>
    </message>
    <message>
        <source>无法加载 %1</source>
        <translation>Cannot load %1</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>%1用法见 opworkbench --help。</source>
        <translation>%1 See opworkbench --help.</translation>
    </message>
    <message>
        <source>没有第 %1 步；任务有 %2 步。</source>
        <translation>There is no step %1; the number of steps is %2.</translation>
    </message>
</context>
<context>
    <name>PropertyTypes</name>
    <message>
        <source>数值</source>
        <translation>number</translation>
    </message>
    <message>
        <source>、</source>
        <comment>between types</comment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>无法写入恢复文件夹</source>
        <translation>the recovery folder cannot be written</translation>
    </message>
</context>
<context>
    <name>ReferenceFacts</name>
    <message>
        <source>变量 %1（%2）没有成员“%3”</source>
        <translation>Variable %1 (%2) has no member &quot;%3&quot;</translation>
    </message>
    <message>
        <source>没有变量“%1”</source>
        <translation>There is no variable &quot;%1&quot;</translation>
    </message>
    <message>
        <source>变量 %1（%2）= %3</source>
        <translation>Variable %1 (%2) = %3</translation>
    </message>
    <message>
        <source>变量 %1（%2）的 %3 = %4</source>
        <translation>Variable %1 (%2), its %3 = %4</translation>
    </message>
</context>
<context>
    <name>RunActions</name>
    <message>
        <source>运行(&amp;R)</source>
        <translation>&amp;Run</translation>
    </message>
    <message>
        <source>单步(&amp;S)</source>
        <translation>&amp;Step over</translation>
    </message>
    <message>
        <source>运行到此处(&amp;H)</source>
        <translation>Run to &amp;here</translation>
    </message>
    <message>
        <source>暂停(&amp;P)</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>停止(&amp;T)</source>
        <translation>S&amp;top</translation>
    </message>
    <message>
        <source>重置(&amp;E)</source>
        <translation>R&amp;eset</translation>
    </message>
    <message>
        <source>切换断点(&amp;B)</source>
        <translation>Toggle &amp;breakpoint</translation>
    </message>
    <message>
        <source>清除所有断点(&amp;C)</source>
        <translation>&amp;Clear all breakpoints</translation>
    </message>
    <message>
        <source>继续(&amp;R)</source>
        <translation>&amp;Resume</translation>
    </message>
    <message>
        <source>取消断点</source>
        <translation>Clear breakpoint</translation>
    </message>
    <message>
        <source>设置断点</source>
        <translation>Set breakpoint</translation>
    </message>
    <message>
        <source>清除所有断点</source>
        <translation>Clear all breakpoints</translation>
    </message>
</context>
<context>
    <name>RunChronicle</name>
    <message>
        <source>%1 运行开始</source>
        <translation>%1 Run started</translation>
    </message>
    <message>
        <source>已重置</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>在断点处暂停：%1</source>
        <translation>Paused at breakpoint (%1)</translation>
    </message>
    <message>
        <source>运行到此处：%1</source>
        <translation>Ran to here (%1)</translation>
    </message>
    <message>
        <source>运行结束：%1</source>
        <translation>Finished (%1)</translation>
    </message>
    <message>
        <source>已停止：%1</source>
        <translation>Stopped (%1)</translation>
    </message>
    <message>
        <source>已暂停：%1</source>
        <translation>Paused (%1)</translation>
    </message>
    <message>
        <source>%1 个步骤，%2 条警告</source>
        <translation>steps: %1, warnings: %2</translation>
    </message>
</context>
<context>
    <name>RunSession</name>
    <message>
        <source>设置 %1 的当前值</source>
        <translation>Set current value of %1</translation>
    </message>
    <message>
        <source>步骤抛出了异常：%1</source>
        <translation>The step threw an exception: %1</translation>
    </message>
</context>
<context>
    <name>Screenshot</name>
    <message>
        <source>无法画成图片</source>
        <translation>cannot be drawn as a picture</translation>
    </message>
</context>
<context>
    <name>SearchBar</name>
    <message>
        <source>查找</source>
        <translation>Find</translation>
    </message>
    <message>
        <source>上一处 (Shift+F3)</source>
        <translation>Previous (Shift+F3)</translation>
    </message>
    <message>
        <source>下一处 (F3)</source>
        <translation>Next (F3)</translation>
    </message>
    <message>
        <source>正在查找…</source>
        <translation>Searching…</translation>
    </message>
    <message>
        <source>没有找到</source>
        <translation>Not found</translation>
    </message>
    <message>
        <source>已从另一端继续查找</source>
        <translation>Went on from the other end</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>%1 个步骤，%2 个变量</source>
        <translation>Steps: %1, variables: %2</translation>
    </message>
    <message>
        <source>运行中</source>
        <translation>Running</translation>
    </message>
    <message>
        <source>已暂停，下一步是第 %1 步</source>
        <translation>Paused before step %1</translation>
    </message>
    <message>
        <source>运行结束</source>
        <translation>Run finished</translation>
    </message>
    <message>
        <source>就绪</source>
        <translation>Ready</translation>
    </message>
    <message>
        <source>检查：没有发现问题</source>
        <translation>Findings: none</translation>
    </message>
    <message>
        <source>检查：%1 处</source>
        <translation>Findings: %1</translation>
    </message>
</context>
<context>
    <name>StepActions</name>
    <message>
        <source>添加步骤(&amp;A)…</source>
        <translation>&amp;Add step…</translation>
    </message>
    <message>
        <source>剪切(&amp;T)</source>
        <translation>Cu&amp;t</translation>
    </message>
    <message>
        <source>复制(&amp;C)</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>粘贴(&amp;P)</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>创建副本(&amp;D)</source>
        <translation>&amp;Duplicate</translation>
    </message>
    <message>
        <source>删除(&amp;L)</source>
        <translation>De&amp;lete</translation>
    </message>
    <message>
        <source>全选(&amp;S)</source>
        <translation>&amp;Select all</translation>
    </message>
    <message>
        <source>下移(&amp;O)</source>
        <translation>M&amp;ove down</translation>
    </message>
    <message>
        <source>设置或取消断点(&amp;B)</source>
        <translation>Toggle &amp;breakpoint</translation>
    </message>
    <message>
        <source>运行到此处(&amp;R)</source>
        <translation>&amp;Run to here</translation>
    </message>
    <message>
        <source>上移(&amp;M)</source>
        <translation>&amp;Move up</translation>
    </message>
</context>
<context>
    <name>StepDelegate</name>
    <message>
        <source>上次运行的警告：</source>
        <translation>Warnings of the last run:</translation>
    </message>
    <message>
        <source>检查发现：</source>
        <translation>Findings:</translation>
    </message>
    <message>
        <source>单击以设置或取消断点</source>
        <translation>Click to set or clear a breakpoint</translation>
    </message>
</context>
<context>
    <name>StepEdits</name>
    <message>
        <source>添加步骤“%1”</source>
        <translation>Add step &quot;%1&quot;</translation>
    </message>
    <message numerus="yes">
        <source>删除 %n 个步骤</source>
        <translation>
            <numerusform>Delete %n step</numerusform>
            <numerusform>Delete %n steps</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>剪切 %n 个步骤</source>
        <translation>
            <numerusform>Cut %n step</numerusform>
            <numerusform>Cut %n steps</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>创建 %n 个步骤的副本</source>
        <translation>
            <numerusform>Duplicate %n step</numerusform>
            <numerusform>Duplicate %n steps</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>移动 %n 个步骤</source>
        <translation>
            <numerusform>Move %n step</numerusform>
            <numerusform>Move %n steps</numerusform>
        </translation>
    </message>
    <message>
        <source>取消断点</source>
        <translation>Clear breakpoint</translation>
    </message>
    <message>
        <source>设置断点</source>
        <translation>Set breakpoint</translation>
    </message>
    <message>
        <source>没有可以粘贴的步骤。</source>
        <translation>There are no steps to paste.</translation>
    </message>
    <message>
        <source>这段文本不是任务，无法粘贴：%1</source>
        <translation>This text is no task and cannot be pasted: %1</translation>
    </message>
    <message numerus="yes">
        <source>粘贴 %n 个步骤</source>
        <translation>
            <numerusform>Paste %n step</numerusform>
            <numerusform>Paste %n steps</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepForm</name>
    <message>
        <source>“%1”在当前选择下不显示，也不使用</source>
        <translation>&quot;%1&quot; is neither shown nor used with this choice</translation>
    </message>
    <message>
        <source>编辑“%1”</source>
        <translation>Edit &quot;%1&quot;</translation>
    </message>
    <message>
        <source>新建变量“%1”</source>
        <translation>Create variable &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>StepHeader</name>
    <message>
        <source>说明</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>摘要</source>
        <translation>Summary</translation>
    </message>
</context>
<context>
    <name>StepMigrator</name>
    <message>
        <source>第 %1 步：新版本没有保留 %2</source>
        <translation>Step %1: the new version has not kept %2</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>StepModel</name>
    <message>
        <source>第 %1 步</source>
        <translation>Step %1</translation>
    </message>
    <message>
        <source>断点</source>
        <translation>breakpoint</translation>
    </message>
    <message>
        <source>将要运行</source>
        <translation>runs next</translation>
    </message>
</context>
<context>
    <name>StepView</name>
    <message>
        <source>步骤</source>
        <translation>Steps</translation>
    </message>
    <message>
        <source>双击左侧的操作，或将其拖到这里</source>
        <translation>Double-click an operation on the left, or drag it here</translation>
    </message>
</context>
<context>
    <name>TextFile</name>
    <message>
        <source>文件“%1”太大。</source>
        <translation>The file &quot;%1&quot; is too large.</translation>
    </message>
    <message>
        <source>读不出文件“%1”：%2</source>
        <translation>The file &quot;%1&quot; cannot be read: %2</translation>
    </message>
    <message>
        <source>文件“%1”不是 UTF-8 编码的文本。</source>
        <translation>The file &quot;%1&quot; is no text in UTF-8.</translation>
    </message>
    <message>
        <source>文本中有不成对的代理项，无法写成 UTF-8；文件“%1”没有改动。</source>
        <translation>The text has unpaired surrogates and cannot be written as UTF-8; the file &quot;%1&quot; is unchanged.</translation>
    </message>
    <message>
        <source>写不了文件“%1”：%2</source>
        <translation>The file &quot;%1&quot; cannot be written: %2</translation>
    </message>
</context>
<context>
    <name>TextOperandEditor</name>
    <message>
        <source>将按数值 %1 使用</source>
        <translation>Is used as the number %1</translation>
    </message>
    <message>
        <source>%1；此处需要%2</source>
        <translation>%1; expected here: %2</translation>
    </message>
</context>
<context>
    <name>TextViewer</name>
    <message>
        <source>从文件载入…</source>
        <translation>Load from file…</translation>
    </message>
    <message>
        <source>从剪贴板替换</source>
        <translation>Replace from clipboard</translation>
    </message>
    <message>
        <source>另存为…</source>
        <translation>Save as…</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>光标前的 UTF-16 单元数</source>
        <translation>UTF-16 units before the cursor</translation>
    </message>
    <message>
        <source>位置(&amp;P)</source>
        <translation>&amp;Position</translation>
    </message>
    <message>
        <source>从文件载入</source>
        <translation>Load from file</translation>
    </message>
    <message>
        <source>另存为</source>
        <translation>Save as</translation>
    </message>
    <message>
        <source>第 %1 行，第 %2 个单元</source>
        <translation>Line %1, unit %2</translation>
    </message>
    <message>
        <source>%1 个 UTF-16 单元，%2 个字符</source>
        <translation>UTF-16 units: %1, characters: %2</translation>
    </message>
</context>
<context>
    <name>TypeWord</name>
    <message>
        <source>整数</source>
        <translation>int</translation>
    </message>
    <message>
        <source>小数</source>
        <translation>double</translation>
    </message>
    <message>
        <source>字符串</source>
        <translation>string</translation>
    </message>
    <message>
        <source>列表</source>
        <translation>list</translation>
    </message>
    <message>
        <source>表格</source>
        <translation>table</translation>
    </message>
    <message>
        <source>未知类型</source>
        <translation>unknown type</translation>
    </message>
    <message>
        <source>布尔值</source>
        <translation>bool</translation>
    </message>
</context>
<context>
    <name>ValueDialog</name>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>确定 (Ctrl+Enter)</source>
        <translation>OK (Ctrl+Enter)</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>有修改尚未确定。再按一次 Esc 或再次关闭，就会放弃这些修改。</source>
        <translation>There are changes not confirmed yet. Press Esc or close again to discard them.</translation>
    </message>
</context>
<context>
    <name>ValueInput</name>
    <message>
        <source>这里需要 -2147483648 到 2147483647 之间的整数。</source>
        <translation>A whole number from -2147483648 to 2147483647 is expected here.</translation>
    </message>
    <message>
        <source>这里需要一个数，例如 0.5、-3 或 1e6；也可以是 inf、-inf 或 nan。</source>
        <translation>A number is expected here, such as 0.5, -3 or 1e6, or inf, -inf or nan.</translation>
    </message>
    <message>
        <source>这里需要 true 或 false。</source>
        <translation>true or false is expected here.</translation>
    </message>
    <message>
        <source>这里需要一个 JSON 数组，例如 [1, &quot;a&quot;]。</source>
        <translation>A JSON array is expected here, such as [1, &quot;a&quot;].</translation>
    </message>
    <message>
        <source>这里需要由行组成的 JSON 数组，例如 [[1, 2], [3]]。</source>
        <translation>A JSON array of rows is expected here, such as [[1, 2], [3]].</translation>
    </message>
    <message>
        <source>这里不能填写这个值。</source>
        <translation>This value cannot be entered here.</translation>
    </message>
</context>
<context>
    <name>ValuePreview</name>
    <message>
        <source>（没有值）</source>
        <translation>(no value)</translation>
    </message>
    <message>
        <source>（空）</source>
        <translation>(empty)</translation>
    </message>
    <message>
        <source>%1 个 UTF-16 单元</source>
        <translation>%1 units</translation>
    </message>
    <message>
        <source>%1 行</source>
        <translation>rows: %1</translation>
    </message>
    <message>
        <source>%1 项</source>
        <translation>items: %1</translation>
    </message>
    <message>
        <source>%1 （%2）</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>VariableModel</name>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>初值</source>
        <translation>Start value</translation>
    </message>
    <message>
        <source>当前值</source>
        <translation>Current value</translation>
    </message>
    <message>
        <source>这个变量已经不存在。</source>
        <translation>This variable no longer exists.</translation>
    </message>
    <message>
        <source>没有这个类型。</source>
        <translation>There is no such type.</translation>
    </message>
    <message>
        <source>只有在运行暂停或结束后才能修改当前值。</source>
        <translation>Current values can only be changed while a run is paused or after it.</translation>
    </message>
    <message>
        <source>这个值与变量“%1”现在的类型不符。</source>
        <translation>This value does not fit the present type of the variable &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>没有步骤使用这个变量。</source>
        <translation>No step uses this variable.</translation>
    </message>
    <message>
        <source>步骤中的引用写不出名称“%1”：引用里的名称到“.”为止。</source>
        <translation>References in the steps cannot hold the name &quot;%1&quot;: in a reference a name ends at the first &quot;.&quot;.</translation>
    </message>
    <message>
        <source>重命名变量“%1”</source>
        <translation>Rename variable &quot;%1&quot;</translation>
    </message>
    <message>
        <source>修改变量“%1”的类型</source>
        <translation>Change type of variable &quot;%1&quot;</translation>
    </message>
    <message>
        <source>修改变量“%1”的初值</source>
        <translation>Change start value of variable &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>VariableNameEditor</name>
    <message>
        <source>这个名称太长，只显示开头</source>
        <translation>This name is too long; only its beginning is shown</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>没有指定保存结果的变量</source>
        <translation>No variable for the result is named</translation>
    </message>
    <message>
        <source>没有指定变量</source>
        <translation>No variable is named</translation>
    </message>
    <message>
        <source>新建变量…</source>
        <translation>New variable…</translation>
    </message>
    <message>
        <source>此处只写变量名，前面不加“$”</source>
        <translation>Here a variable is named without &quot;$&quot;</translation>
    </message>
    <message>
        <source>改为 %1</source>
        <translation>Change to %1</translation>
    </message>
    <message>
        <source>没有变量“%1”</source>
        <translation>There is no variable &quot;%1&quot;</translation>
    </message>
    <message>
        <source>新建变量 %1（%2）</source>
        <translation>Create variable %1 (%2)</translation>
    </message>
    <message>
        <source>变量 %1 是%2，此处需要%3</source>
        <translation>Variable %1 is of type %2; expected here: %3</translation>
    </message>
</context>
<context>
    <name>VariableNames</name>
    <message>
        <source>变量需要一个名称。</source>
        <translation>A variable needs a name.</translation>
    </message>
    <message>
        <source>已有名为“%1”的变量，请换一个名称。</source>
        <translation>There is a variable &quot;%1&quot; already; choose another name.</translation>
    </message>
</context>
<context>
    <name>VariablesPanel</name>
    <message>
        <source>重命名时同时更新步骤中的引用(&amp;S)</source>
        <translation>Renaming updates the references in &amp;steps</translation>
    </message>
    <message>
        <source>变量</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>添加变量(&amp;A)</source>
        <translation>&amp;Add variable</translation>
    </message>
    <message>
        <source>添加变量</source>
        <translation>Add variable</translation>
    </message>
    <message>
        <source>复制一份(&amp;D)</source>
        <translation>&amp;Duplicate</translation>
    </message>
    <message>
        <source>删除变量(&amp;E)</source>
        <translation>D&amp;elete variable</translation>
    </message>
    <message>
        <source>重命名(&amp;M)</source>
        <translation>Rena&amp;me</translation>
    </message>
    <message>
        <source>打开值(&amp;O)…</source>
        <translation>&amp;Open value…</translation>
    </message>
    <message>
        <source>复制值(&amp;C)</source>
        <translation>&amp;Copy value</translation>
    </message>
    <message>
        <source>上移(&amp;U)</source>
        <translation>Move &amp;up</translation>
    </message>
    <message>
        <source>下移(&amp;N)</source>
        <translation>Move dow&amp;n</translation>
    </message>
    <message>
        <source>变量1</source>
        <translation>variable1</translation>
    </message>
    <message>
        <source>添加变量“%1”</source>
        <translation>Add variable &quot;%1&quot;</translation>
    </message>
    <message>
        <source>复制变量</source>
        <translation>Duplicate variable</translation>
    </message>
    <message>
        <source>”、“</source>
        <translation>&quot;, &quot;</translation>
    </message>
    <message>
        <source>删除变量“%1”</source>
        <translation>Delete variable &quot;%1&quot;</translation>
    </message>
    <message>
        <source>已删除变量“%1”，还有 %2 个步骤用到。可以撤销。</source>
        <translation>Deleted &quot;%1&quot;. Number of steps that still use it: %2. This can be undone.</translation>
    </message>
    <message>
        <source>移动变量“%1”</source>
        <translation>Move variable &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 — 当前值</source>
        <translation>%1 — current value</translation>
    </message>
    <message>
        <source>%1 — 初值</source>
        <translation>%1 — start value</translation>
    </message>
</context>
<context>
    <name>ViewMenu</name>
    <message>
        <source>视图(&amp;V)</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>外观(&amp;A)</source>
        <translation>&amp;Appearance</translation>
    </message>
    <message>
        <source>浅色(&amp;L)</source>
        <translation>&amp;Light</translation>
    </message>
    <message>
        <source>深色(&amp;D)</source>
        <translation>&amp;Dark</translation>
    </message>
    <message>
        <source>转到面板(&amp;G)</source>
        <translation>&amp;Go to panel</translation>
    </message>
</context>
<context>
    <name>WholeTextEdit</name>
    <message>
        <source>剪切(&amp;T)</source>
        <translation>Cu&amp;t</translation>
    </message>
    <message>
        <source>复制(&amp;C)</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>粘贴(&amp;P)</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>全选(&amp;A)</source>
        <translation>Select &amp;all</translation>
    </message>
</context>
<context>
    <name>WorkbenchOptions</name>
    <message>
        <source>文件</source>
        <translation>file</translation>
    </message>
    <message>
        <source>步号</source>
        <translation>step</translation>
    </message>
    <message>
        <source>编辑、试运行桌面自动化任务，并试用其插件。</source>
        <translation>Edits and tries out desktop automation tasks and their plug-ins.</translation>
    </message>
    <message>
        <source>任务</source>
        <translation>task</translation>
    </message>
    <message>
        <source>要打开的任务文件，JSON 或打包格式。</source>
        <translation>The task file to open, in JSON or packed.</translation>
    </message>
    <message>
        <source>[任务]</source>
        <translation>[task]</translation>
    </message>
    <message>
        <source>加载这个插件，代替程序自带的；可重复。文件改变时重新加载。</source>
        <translation>Load this plug-in instead of those that come with the program; repeatable. It is reloaded when the file changes.</translation>
    </message>
    <message>
        <source>窗口的外观：%1。</source>
        <translation>Appearance of the window: %1.</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>name</translation>
    </message>
    <message>
        <source>窗口的语言：%1。</source>
        <translation>Language of the window: %1.</translation>
    </message>
    <message>
        <source>语言</source>
        <translation>language</translation>
    </message>
    <message>
        <source>选中这一步，从 1 开始计数。</source>
        <translation>Select this step, counting from 1.</translation>
    </message>
    <message>
        <source>打开后运行任务。</source>
        <translation>Run the task once it is open.</translation>
    </message>
    <message>
        <source>打开后运行任务，在这一步之前暂停。</source>
        <translation>Run the task once it is open, and pause before this step.</translation>
    </message>
    <message>
        <source>把窗口画成 PNG 图片写入这个文件，然后退出。</source>
        <translation>Write a PNG picture of the window to this file and quit.</translation>
    </message>
    <message>
        <source>图片的大小，以逻辑像素计，默认 1280x800。</source>
        <translation>Size of the picture in logical pixels, 1280x800 by default.</translation>
    </message>
    <message>
        <source>宽x高</source>
        <translation>WxH</translation>
    </message>
    <message>
        <source>显示这段说明。</source>
        <translation>Show this help.</translation>
    </message>
    <message>
        <source>显示版本。</source>
        <translation>Show the version.</translation>
    </message>
    <message>
        <source>没有选项“%1”。</source>
        <translation>There is no option &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>给出了 %1 个任务；一个窗口只打开一个。</source>
        <translation>There are %1 tasks given; a window opens just one.</translation>
    </message>
    <message>
        <source>没有外观“%1”；可用的有 %2。</source>
        <translation>There is no appearance &quot;%1&quot;; choose one of %2.</translation>
    </message>
    <message>
        <source>没有语言“%1”；可用的有 %2。</source>
        <translation>There is no language &quot;%1&quot;; choose one of %2.</translation>
    </message>
    <message>
        <source>选项“%1”缺少文件名。</source>
        <translation>The option &quot;%1&quot; needs a file name.</translation>
    </message>
    <message>
        <source>选项“size”要与“screenshot”一起用。</source>
        <translation>The option &quot;size&quot; is for use with &quot;screenshot&quot;.</translation>
    </message>
    <message>
        <source>大小“%1”无法使用；应为宽x高，各为 1 到 %2。</source>
        <translation>The size &quot;%1&quot; cannot be used; expected WxH, each from 1 to %2.</translation>
    </message>
    <message>
        <source>选项“run”和“pause-at”只能用一个。</source>
        <translation>Only one of the options &quot;run&quot; and &quot;pause-at&quot; can be used.</translation>
    </message>
    <message>
        <source>步号“%1”无法使用；应为从 1 开始的整数。</source>
        <translation>The step &quot;%1&quot; cannot be used; expected a whole number from 1.</translation>
    </message>
    <message>
        <source>没有给出要打开的任务。</source>
        <translation>No task to open is given.</translation>
    </message>
    <message>
        <source>选项“%1”给出了 %2 次；应只给一次。</source>
        <translation>The option &quot;%1&quot; is given %2 times; give it once.</translation>
    </message>
    <message>
        <source>没有选项“%1”；是否指“--%2”？</source>
        <translation>There is no option &quot;%1&quot;; did you mean &quot;--%2&quot;?</translation>
    </message>
</context>
</TS>
