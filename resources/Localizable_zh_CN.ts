<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!--
  The texts that the program asks for by key. A cell of the panel shortens what is wider than 150 points at 13; a
  heading with a slash is shown by its second part.
-->
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- The panel: headings -->
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message>
        <source>Launchpad &amp; Dock</source>
        <translation>应用与任务栏</translation>
    </message>
    <message>
        <source>Mission Contrl</source>
        <translation>概览</translation>
    </message>
    <message>
        <source>Mission Contrl/Mission Contrl</source>
        <translation>概览/工作区</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>键盘</translation>
    </message>
    <message>
        <source>Input Sources</source>
        <translation>输入法</translation>
    </message>
    <message>
        <source>Screen Shots</source>
        <translation>屏幕截图</translation>
    </message>
    <message>
        <source>Spotlight</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>无障碍</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>对比度</translation>
    </message>
    <message>
        <source>App Shortcuts</source>
        <translation>应用程序</translation>
    </message>
    <message>
        <source>All Applications</source>
        <translation>所有应用程序</translation>
    </message>
    <!-- The panel: cells -->
    <message>
        <source>Turn Dock Hiding On/Off</source>
        <translation>自动隐藏任务栏</translation>
    </message>
    <message>
        <source>Show Launchpad</source>
        <translation>显示应用程序</translation>
    </message>
    <message>
        <source>Show Notification Center</source>
        <translation>显示通知</translation>
    </message>
    <message>
        <source>Turn Do Not Disturb On/Off</source>
        <translation>开关勿扰模式</translation>
    </message>
    <message>
        <source>Application Windows</source>
        <translation>应用程序的窗口</translation>
    </message>
    <message>
        <source>Show Desktop</source>
        <translation>显示桌面</translation>
    </message>
    <message>
        <source>Show Dashboard</source>
        <translation>显示桌面小部件</translation>
    </message>
    <message>
        <source>Move left a space</source>
        <translation>左侧工作区</translation>
    </message>
    <message>
        <source>Move right a space</source>
        <translation>右侧工作区</translation>
    </message>
    <message>
        <source>Switch to Desktop 1</source>
        <translation>切换到工作区 1</translation>
    </message>
    <message>
        <source>Switch to Desktop 2</source>
        <translation>切换到工作区 2</translation>
    </message>
    <message>
        <source>Switch to Desktop 3</source>
        <translation>切换到工作区 3</translation>
    </message>
    <message>
        <source>Switch to Desktop 4</source>
        <translation>切换到工作区 4</translation>
    </message>
    <message>
        <source>Change the way Tab moves focus</source>
        <translation>更改 Tab 键的焦点</translation>
    </message>
    <message>
        <source>Turn keyboard access on or off</source>
        <translation>开关键盘访问</translation>
    </message>
    <message>
        <source>Move focus to the menu bar</source>
        <translation>聚焦菜单栏</translation>
    </message>
    <message>
        <source>Move focus to the Dock</source>
        <translation>聚焦任务栏或面板</translation>
    </message>
    <message>
        <source>Move focus to active or next window</source>
        <translation>切换窗口</translation>
    </message>
    <message>
        <source>Move focus to window toolbar</source>
        <translation>聚焦工具栏</translation>
    </message>
    <message>
        <source>Move focus to floating window</source>
        <translation>聚焦浮动窗口</translation>
    </message>
    <message>
        <source>Move focus to next window</source>
        <translation>应用的下一个窗口</translation>
    </message>
    <message>
        <source>Move focus to the window drawer</source>
        <translation>聚焦侧边抽屉</translation>
    </message>
    <message>
        <source>Move focus to the status menus</source>
        <translation>打开状态菜单</translation>
    </message>
    <message>
        <source>Show/Hide Trackpad Handwriting</source>
        <translation>开关手写输入</translation>
    </message>
    <message>
        <source>Select the previous input source</source>
        <translation>上一个输入法</translation>
    </message>
    <message>
        <source>Select next source in the Input Menu</source>
        <translation>下一个输入法</translation>
    </message>
    <message>
        <source>Save picture of screen as file</source>
        <translation>保存全屏截图</translation>
    </message>
    <message>
        <source>Copy picture of screen to the clipboard</source>
        <translation>复制全屏截图</translation>
    </message>
    <message>
        <source>Save picture of selected area as file</source>
        <translation>保存选区截图</translation>
    </message>
    <message>
        <source>Copy picture of selected area to clipboard</source>
        <translation>复制选区截图</translation>
    </message>
    <message>
        <source>Show Spotlight search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Show Finder search window</source>
        <translation>显示搜索窗口</translation>
    </message>
    <message>
        <source>Turn zoom on or off</source>
        <translation>开关缩放</translation>
    </message>
    <message>
        <source>Turn image smoothing on or off</source>
        <translation>开关图像平滑</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Turn focus following on or off</source>
        <translation>开关跟随焦点</translation>
    </message>
    <message>
        <source>Increase contrast</source>
        <translation>开关高对比度</translation>
    </message>
    <message>
        <source>Decrease contrast</source>
        <translation>降低对比度</translation>
    </message>
    <message>
        <source>Invert colors</source>
        <translation>反转颜色</translation>
    </message>
    <message>
        <source>Turn VoiceOver on or off</source>
        <translation>开关屏幕阅读器</translation>
    </message>
    <message>
        <source>Show Accessibility controls</source>
        <translation>无障碍设置</translation>
    </message>
    <message>
        <source>Show Help Menu</source>
        <translation>显示帮助</translation>
    </message>
    <!-- The preferences window and the status menu -->
    <message>
        <source>tab.types.settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>tab.types.tools.library</source>
        <translation>工具库</translation>
    </message>
    <message>
        <source>tab.types.tutorial</source>
        <translation>使用教程</translation>
    </message>
    <message>
        <source>tab.types.free_apps</source>
        <translation>免费应用</translation>
    </message>
    <message>
        <source>tab.types.about</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>statusBar.title.setting</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>statusBar.title.update</source>
        <translation>检查更新…</translation>
    </message>
    <message>
        <source>statusBar.title.plugin</source>
        <translation>插件</translation>
    </message>
    <message>
        <source>statusBar.title.about</source>
        <translation>关于 Orlamo</translation>
    </message>
    <message>
        <source>statusBar.title.quit</source>
        <translation>退出 Orlamo</translation>
    </message>
    <message>
        <source>preference.appearance.auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>preference.appearance.light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>preference.appearance.dark</source>
        <translation>深色</translation>
    </message>
    <!-- Installers and downloads; %@ and %1$@ stand for texts given at run time -->
    <message>
        <source>create.choose.installer.tips.title</source>
        <translation>选择 %@ 的安装程序</translation>
    </message>
    <message>
        <source>create.choose.installer.openPanel.message</source>
        <translation>请选择安装程序</translation>
    </message>
    <message>
        <source>create.choose.drive.title</source>
        <translation>选择驱动器</translation>
    </message>
    <message>
        <source>create.choose.disk.tips.title</source>
        <translation>将 %1$@ 写入驱动器 %2$@</translation>
    </message>
    <message>
        <source>create.installer.media.warning.title</source>
        <translation>要抹掉 %@ 吗？</translation>
    </message>
    <message>
        <source>create.installer.media.alert.messages</source>
        <translation>%@ 上的所有内容都将被删除，且无法恢复。</translation>
    </message>
    <message>
        <source>task.create.title.preparing</source>
        <translation>正在准备…</translation>
    </message>
    <message>
        <source>task.create.title.cleaning</source>
        <translation>正在抹掉驱动器…</translation>
    </message>
    <message>
        <source>task.create.title.copied</source>
        <translation>文件已复制</translation>
    </message>
    <message>
        <source>create.installer.done</source>
        <translation>%@ 已可以使用</translation>
    </message>
    <message>
        <source>download.main.tips.title</source>
        <translation>选择要下载的内容</translation>
    </message>
    <message>
        <source>download.done.alert.title</source>
        <translation>下载完成</translation>
    </message>
    <message>
        <source>download.done.alert.messages</source>
        <translation>%1$@ 已保存到 %2$@</translation>
    </message>
    <message>
        <source>setting.choose.download.installer.path.title</source>
        <translation>安装程序的保存位置</translation>
    </message>
    <message>
        <source>Tip.title</source>
        <translation>提示</translation>
    </message>
</context>
</TS>
