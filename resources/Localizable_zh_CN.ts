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
    <!-- The name of the Ctrl key in the panel; it and "Alt" must stay below 50 points at 14 -->
    <message>
        <source>keyboard.ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <!-- The panel: the session menu. These must not be shortened: below 150 points at 13 -->
    <message>
        <source>session.lock</source>
        <translation>锁定屏幕</translation>
    </message>
    <message>
        <source>session.log_out</source>
        <translation>注销…</translation>
    </message>
    <message>
        <source>session.shut_down</source>
        <translation>关机…</translation>
    </message>
    <message>
        <source>session.overview</source>
        <translation>显示概览</translation>
    </message>
    <message>
        <source>session.show_desktop</source>
        <translation>显示桌面</translation>
    </message>
    <message>
        <source>session.home</source>
        <translation>打开主文件夹</translation>
    </message>
    <message>
        <source>session.files</source>
        <translation>打开文件管理器</translation>
    </message>
    <message>
        <source>session.terminal</source>
        <translation>打开终端</translation>
    </message>
    <message>
        <source>session.settings</source>
        <translation>打开系统设置</translation>
    </message>
    <message>
        <source>session.run</source>
        <translation>运行命令…</translation>
    </message>
    <message>
        <source>session.minimize</source>
        <translation>最小化窗口</translation>
    </message>
    <message>
        <source>session.tasks</source>
        <translation>打开任务管理器</translation>
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
    <!-- The preferences window -->
    <message>
        <source>preferences.window.title</source>
        <translation>Orlamo 设置</translation>
    </message>
    <message>
        <source>preferences.tabs</source>
        <translation>页面</translation>
    </message>
    <!-- The page of the settings -->
    <message>
        <source>settings.tip</source>
        <translation>在任意应用程序中快速按两次触发键，屏幕中央就会显示它的快捷键。</translation>
    </message>
    <message>
        <source>settings.general</source>
        <translation>通用</translation>
    </message>
    <message>
        <source>settings.login</source>
        <translation>登录时启动</translation>
    </message>
    <message>
        <source>settings.login.description</source>
        <translation>登录后即可使用 Orlamo。</translation>
    </message>
    <message>
        <source>settings.hide_icon</source>
        <translation>隐藏状态栏图标</translation>
    </message>
    <message>
        <source>settings.hide_icon.description</source>
        <translation>没有图标时，再次启动 Orlamo 即可回到这里。</translation>
    </message>
    <message>
        <source>settings.taskbar</source>
        <translation>在任务栏中显示窗口</translation>
    </message>
    <message>
        <source>settings.taskbar.description</source>
        <translation>同时显示在窗口切换器中，退出 Orlamo 后失效。</translation>
    </message>
    <message>
        <source>settings.panel</source>
        <translation>快捷键面板</translation>
    </message>
    <message>
        <source>settings.trigger</source>
        <translation>触发键</translation>
    </message>
    <message>
        <source>settings.trigger.description</source>
        <translation>在 PC 键盘上，Command 即 Ctrl，Control 即 Super，Shift 即 Shift。</translation>
    </message>
    <message>
        <source>settings.help</source>
        <translation>触发键的用法</translation>
    </message>
    <message>
        <source>settings.layout</source>
        <translation>布局</translation>
    </message>
    <message>
        <source>settings.layout.columns</source>
        <translation>分栏</translation>
    </message>
    <message>
        <source>settings.blur</source>
        <translation>背景模糊</translation>
    </message>
    <message>
        <source>settings.blur.description</source>
        <translation>面板后面的内容会柔和地透出来。</translation>
    </message>
    <message>
        <source>settings.session_menu</source>
        <translation>包含会话菜单</translation>
    </message>
    <message>
        <source>settings.session_menu.description</source>
        <translation>如果当前桌面提供锁屏、注销等快捷键，则一并显示。</translation>
    </message>
    <message>
        <source>settings.session_menu.unknown_desktop</source>
        <translation>不可用：仅适用于 GNOME、MATE、Cinnamon、Xfce 和 KDE Plasma。</translation>
    </message>
    <message>
        <source>settings.session_menu.not_bound</source>
        <translation>暂不可用：桌面须为锁屏、注销及另外两个命令设置快捷键。</translation>
    </message>
    <message>
        <source>settings.session_menu.no_service</source>
        <translation>暂不可用：所需的桌面服务没有运行。</translation>
    </message>
    <message>
        <source>settings.look</source>
        <translation>颜色与圆角</translation>
    </message>
    <message>
        <source>settings.look.description</source>
        <translation>为以后的版本保存，目前面板尚未使用。</translation>
    </message>
    <message>
        <source>settings.color</source>
        <translation>背景颜色</translation>
    </message>
    <message>
        <source>settings.color.choose</source>
        <translation>选择颜色</translation>
    </message>
    <message>
        <source>settings.radius</source>
        <translation>圆角半径</translation>
    </message>
    <message>
        <source>settings.updates</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>settings.check_updates</source>
        <translation>自动检查更新</translation>
    </message>
    <message>
        <source>settings.check_updates.description</source>
        <translation>为以后的版本保存。目前无论是否选中，距上次启动超过五天时 Orlamo 都会在启动时检查更新；以软件包安装的 Orlamo 随软件包更新。</translation>
    </message>
    <message>
        <source>settings.permission</source>
        <translation>权限</translation>
    </message>
    <message>
        <source>settings.permission.description</source>
        <translation>Orlamo 通过桌面的无障碍服务读取其他应用程序的菜单。</translation>
    </message>
    <message>
        <source>settings.permission.help</source>
        <translation>如何授予权限</translation>
    </message>
    <!-- The help beside the trigger key -->
    <message>
        <source>popover.title</source>
        <translation>如何打开面板</translation>
    </message>
    <message>
        <source>popover.open</source>
        <translation>在半秒内按两次触发键，期间不要按住其他修饰键。</translation>
    </message>
    <message>
        <source>popover.hold</source>
        <translation>面板打开时按住修饰键，与之匹配的快捷键会变为青色。</translation>
    </message>
    <message>
        <source>popover.close</source>
        <translation>再次按两次触发键、按 Esc 键或点击其他应用程序即可关闭。</translation>
    </message>
    <!-- The tutorial -->
    <message>
        <source>tutorial.lead</source>
        <translation>只需了解四点，所有快捷键尽在手边。</translation>
    </message>
    <message>
        <source>tutorial.open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>tutorial.open.description</source>
        <translation>快速按两次触发键。触发键是 Ctrl，除非您在设置中选择了其他键。面板会显示前台应用程序的快捷键，旁边是桌面的快捷键。</translation>
    </message>
    <message>
        <source>tutorial.find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>tutorial.find.description</source>
        <translation>按住 Ctrl、Alt、Shift 或 Super，恰好使用这些修饰键的快捷键会变为青色。</translation>
    </message>
    <message>
        <source>tutorial.click</source>
        <translation>点击</translation>
    </message>
    <message>
        <source>tutorial.click.description</source>
        <translation>点击一个快捷键即可执行它，与按下按键的效果相同。</translation>
    </message>
    <message>
        <source>tutorial.close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>tutorial.close.description</source>
        <translation>再次按两次触发键或按 Esc 键，也可以点击其他应用程序。</translation>
    </message>
    <message>
        <source>tutorial.video</source>
        <translation>观看视频</translation>
    </message>
    <message>
        <source>tutorial.questions</source>
        <translation>常见问题</translation>
    </message>
    <!-- The applications of the publisher -->
    <message>
        <source>freeapps.lead</source>
        <translation>Orlamo 团队的其他小巧工具。</translation>
    </message>
    <message>
        <source>freeapps.website</source>
        <translation>官方网站</translation>
    </message>
    <message>
        <source>freeapps.more</source>
        <translation>更多应用</translation>
    </message>
    <message>
        <source>freeapps.orlamo.desc</source>
        <translation>一目了然地显示前台应用程序的所有快捷键。</translation>
    </message>
    <message>
        <source>freeapps.tavlumi.desc</source>
        <translation>记住您复制过的内容，随时取回。</translation>
    </message>
    <message>
        <source>freeapps.brenquo.desc</source>
        <translation>一键并排摆放窗口。</translation>
    </message>
    <message>
        <source>freeapps.oskelid.desc</source>
        <translation>测量屏幕上的一切。</translation>
    </message>
    <message>
        <source>freeapps.pirvanto.desc</source>
        <translation>批量重命名文件，并可预览结果。</translation>
    </message>
    <message>
        <source>freeapps.zelmoru.desc</source>
        <translation>按时工作，按时休息。</translation>
    </message>
    <message>
        <source>freeapps.fenzavo.desc</source>
        <translation>输入缩写，自动展开成完整语句。</translation>
    </message>
    <message>
        <source>freeapps.murtiglo.desc</source>
        <translation>看看是什么占满了磁盘。</translation>
    </message>
    <message>
        <source>freeapps.yarpeno.desc</source>
        <translation>纯文本笔记，随手可得。</translation>
    </message>
    <!-- The page about the program -->
    <message>
        <source>about.lead</source>
        <translation>所有快捷键，一目了然。</translation>
    </message>
    <message>
        <source>about.support</source>
        <translation>技术支持</translation>
    </message>
    <message>
        <source>about.support.description</source>
        <translation>遇到问题或有好的想法？请告诉我们。</translation>
    </message>
    <message>
        <source>about.support.open</source>
        <translation>获取支持</translation>
    </message>
    <message>
        <source>about.chat</source>
        <translation>交流群</translation>
    </message>
    <message>
        <source>about.chat.description</source>
        <translation>与其他 Orlamo 用户交流。</translation>
    </message>
    <message>
        <source>about.chat.open</source>
        <translation>加入群聊</translation>
    </message>
    <!-- The permission window -->
    <message>
        <source>permission.window.title</source>
        <translation>Orlamo 需要权限</translation>
    </message>
    <message>
        <source>permission.title</source>
        <translation>允许 Orlamo 读取菜单吗？</translation>
    </message>
    <message>
        <source>permission.reason</source>
        <translation>为了列出应用程序的快捷键，Orlamo 需要通过桌面的无障碍服务读取其菜单，而该服务目前处于关闭状态。读取的内容只保留在本机。</translation>
    </message>
    <message>
        <source>accessibility.permission.gained</source>
        <translation>无障碍服务已开启</translation>
    </message>
    <message>
        <source>accessibility.permission.not.obtained</source>
        <translation>无障碍服务未开启</translation>
    </message>
    <message>
        <source>permission.screen_recording</source>
        <translation>屏幕录制</translation>
    </message>
    <message>
        <source>permission.full_disk_access</source>
        <translation>完全磁盘访问</translation>
    </message>
    <message>
        <source>permission.allow</source>
        <translation>开启</translation>
    </message>
    <message>
        <source>permission.help</source>
        <translation>这是什么意思？</translation>
    </message>
    <message>
        <source>permission.later</source>
        <translation>以后再说</translation>
    </message>
    <!-- The window that looks for updates -->
    <message>
        <source>update.window.title</source>
        <translation>软件更新</translation>
    </message>
    <message>
        <source>update.checking.title</source>
        <translation>正在检查更新…</translation>
    </message>
    <message>
        <source>update.upToDate.title</source>
        <translation>Orlamo 已是最新版本</translation>
    </message>
    <message>
        <source>update.upToDate.message</source>
        <translation>当前版本为 %@，没有更新的版本。</translation>
    </message>
    <message>
        <source>update.newVersion.title</source>
        <translation>Orlamo %@ 已发布</translation>
    </message>
    <message>
        <source>update.newVersion.message</source>
        <translation>当前版本为 %@。新版本的页面介绍了获取方式。</translation>
    </message>
    <message>
        <source>update.newVersion.noPage</source>
        <translation>当前版本为 %@。没有新版本的页面，请从获取 Orlamo 的地方更新。</translation>
    </message>
    <message>
        <source>update.newVersion.pageFailed</source>
        <translation>此电脑无法打开 %@</translation>
    </message>
    <message>
        <source>update.notes</source>
        <translation>新功能</translation>
    </message>
    <message>
        <source>update.package.title</source>
        <translation>更新随软件包提供</translation>
    </message>
    <message>
        <source>update.package.message</source>
        <translation>此 Orlamo 以软件包形式安装，会随系统一起更新。</translation>
    </message>
    <message>
        <source>update.failed.title</source>
        <translation>无法检查更新</translation>
    </message>
    <message>
        <source>update.failed.address</source>
        <translation>更新地址不是安全地址（https），因此没有使用。</translation>
    </message>
    <message>
        <source>update.failed.insecureRedirect</source>
        <translation>更新服务器转到了不安全的地址，因此没有继续。</translation>
    </message>
    <message>
        <source>update.failed.tooManyRedirects</source>
        <translation>更新服务器的跳转次数过多。</translation>
    </message>
    <message>
        <source>update.failed.unreachable</source>
        <translation>无法连接更新服务器，或连接已中断。请检查网络连接后重试。</translation>
    </message>
    <message>
        <source>update.failed.untrusted</source>
        <translation>无法验证更新服务器的身份。其证书可能已过期，此电脑的日期也可能不正确。</translation>
    </message>
    <message>
        <source>update.failed.timedOut</source>
        <translation>更新服务器没有及时响应。请稍后重试。</translation>
    </message>
    <message>
        <source>update.failed.refused</source>
        <translation>更新服务器上没有版本列表。请稍后重试。</translation>
    </message>
    <message>
        <source>update.failed.tooLarge</source>
        <translation>更新服务器发送的内容过大，因此没有读取。</translation>
    </message>
    <message>
        <source>update.failed.unreadable</source>
        <translation>更新服务器发送的内容不是版本列表。</translation>
    </message>
    <message>
        <source>update.button.openPage</source>
        <translation>打开页面</translation>
    </message>
    <message>
        <source>update.button.later</source>
        <translation>以后</translation>
    </message>
    <message>
        <source>update.button.close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>update.button.cancel</source>
        <translation>取消</translation>
    </message>
    <!-- The second launch -->
    <message>
        <source>instance.noAnswer.title</source>
        <translation>Orlamo 正在运行，但没有响应</translation>
    </message>
    <message>
        <source>instance.noAnswer.message</source>
        <translation>请稍候再试。如果仍然无效，请退出 Orlamo，或在系统监视器中结束它，然后重新启动。</translation>
    </message>
</context>
</TS>
