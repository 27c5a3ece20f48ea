<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!--
  The texts that the program asks for by key. A cell of the panel shortens what is wider than 150 points at 13; a
  heading with a slash is shown by its second part.
-->
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- The panel: headings -->
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Launchpad &amp; Dock</source>
        <translation>Apps &amp; Dock</translation>
    </message>
    <message>
        <source>Mission Contrl</source>
        <translation>Overview</translation>
    </message>
    <message>
        <source>Mission Contrl/Mission Contrl</source>
        <translation>Overview/Workspaces</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Keyboard</translation>
    </message>
    <message>
        <source>Input Sources</source>
        <translation>Input Sources</translation>
    </message>
    <message>
        <source>Screen Shots</source>
        <translation>Screenshots</translation>
    </message>
    <message>
        <source>Spotlight</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Accessibility</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>App Shortcuts</source>
        <translation>Applications</translation>
    </message>
    <message>
        <source>All Applications</source>
        <translation>All Applications</translation>
    </message>
    <!-- The panel: cells -->
    <message>
        <source>Turn Dock Hiding On/Off</source>
        <translation>Dock hiding on/off</translation>
    </message>
    <message>
        <source>Show Launchpad</source>
        <translation>Show applications</translation>
    </message>
    <message>
        <source>Show Notification Center</source>
        <translation>Show notifications</translation>
    </message>
    <message>
        <source>Turn Do Not Disturb On/Off</source>
        <translation>Do not disturb on/off</translation>
    </message>
    <message>
        <source>Application Windows</source>
        <translation>Application windows</translation>
    </message>
    <message>
        <source>Show Desktop</source>
        <translation>Show desktop</translation>
    </message>
    <message>
        <source>Show Dashboard</source>
        <translation>Show widgets</translation>
    </message>
    <message>
        <source>Move left a space</source>
        <translation>Workspace to the left</translation>
    </message>
    <message>
        <source>Move right a space</source>
        <translation>Workspace to the right</translation>
    </message>
    <message>
        <source>Switch to Desktop 1</source>
        <translation>Go to workspace 1</translation>
    </message>
    <message>
        <source>Switch to Desktop 2</source>
        <translation>Go to workspace 2</translation>
    </message>
    <message>
        <source>Switch to Desktop 3</source>
        <translation>Go to workspace 3</translation>
    </message>
    <message>
        <source>Switch to Desktop 4</source>
        <translation>Go to workspace 4</translation>
    </message>
    <message>
        <source>Change the way Tab moves focus</source>
        <translation>Change Tab focus</translation>
    </message>
    <message>
        <source>Turn keyboard access on or off</source>
        <translation>Keyboard access</translation>
    </message>
    <message>
        <source>Move focus to the menu bar</source>
        <translation>Focus the menu bar</translation>
    </message>
    <message>
        <source>Move focus to the Dock</source>
        <translation>Focus dock or panel</translation>
    </message>
    <message>
        <source>Move focus to active or next window</source>
        <translation>Switch windows</translation>
    </message>
    <message>
        <source>Move focus to window toolbar</source>
        <translation>Focus the toolbar</translation>
    </message>
    <message>
        <source>Move focus to floating window</source>
        <translation>Focus floating window</translation>
    </message>
    <message>
        <source>Move focus to next window</source>
        <translation>Next app window</translation>
    </message>
    <message>
        <source>Move focus to the window drawer</source>
        <translation>Focus the side drawer</translation>
    </message>
    <message>
        <source>Move focus to the status menus</source>
        <translation>Open the status menu</translation>
    </message>
    <message>
        <source>Show/Hide Trackpad Handwriting</source>
        <translation>Handwriting on/off</translation>
    </message>
    <message>
        <source>Select the previous input source</source>
        <translation>Previous input source</translation>
    </message>
    <message>
        <source>Select next source in the Input Menu</source>
        <translation>Next input source</translation>
    </message>
    <message>
        <source>Save picture of screen as file</source>
        <translation>Save the screen</translation>
    </message>
    <message>
        <source>Copy picture of screen to the clipboard</source>
        <translation>Copy the screen</translation>
    </message>
    <message>
        <source>Save picture of selected area as file</source>
        <translation>Save selected area</translation>
    </message>
    <message>
        <source>Copy picture of selected area to clipboard</source>
        <translation>Copy selected area</translation>
    </message>
    <message>
        <source>Show Spotlight search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Show Finder search window</source>
        <translation>Show search window</translation>
    </message>
    <message>
        <source>Turn zoom on or off</source>
        <translation>Zoom on/off</translation>
    </message>
    <message>
        <source>Turn image smoothing on or off</source>
        <translation>Smooth images on/off</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom out</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom in</translation>
    </message>
    <message>
        <source>Turn focus following on or off</source>
        <translation>Follow focus on/off</translation>
    </message>
    <message>
        <source>Increase contrast</source>
        <translation>High contrast on/off</translation>
    </message>
    <message>
        <source>Decrease contrast</source>
        <translation>Decrease contrast</translation>
    </message>
    <message>
        <source>Invert colors</source>
        <translation>Invert colors</translation>
    </message>
    <message>
        <source>Turn VoiceOver on or off</source>
        <translation>Screen reader on/off</translation>
    </message>
    <message>
        <source>Show Accessibility controls</source>
        <translation>Accessibility settings</translation>
    </message>
    <message>
        <source>Show Help Menu</source>
        <translation>Show help</translation>
    </message>
    <!-- The name of the Ctrl key in the panel; it and "Alt" must stay below 50 points at 14 -->
    <message>
        <source>keyboard.ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <!-- The panel: the session menu. These must not be shortened: below 150 points at 13 -->
    <message>
        <source>session.lock</source>
        <translation>Lock Screen</translation>
    </message>
    <message>
        <source>session.log_out</source>
        <translation>Log Out…</translation>
    </message>
    <message>
        <source>session.shut_down</source>
        <translation>Shut Down…</translation>
    </message>
    <message>
        <source>session.overview</source>
        <translation>Show Overview</translation>
    </message>
    <message>
        <source>session.show_desktop</source>
        <translation>Show Desktop</translation>
    </message>
    <message>
        <source>session.home</source>
        <translation>Open Home Folder</translation>
    </message>
    <message>
        <source>session.files</source>
        <translation>Open File Manager</translation>
    </message>
    <message>
        <source>session.terminal</source>
        <translation>Open Terminal</translation>
    </message>
    <message>
        <source>session.settings</source>
        <translation>Open System Settings</translation>
    </message>
    <message>
        <source>session.run</source>
        <translation>Run a Command…</translation>
    </message>
    <message>
        <source>session.minimize</source>
        <translation>Minimize Window</translation>
    </message>
    <message>
        <source>session.tasks</source>
        <translation>Open Task Manager</translation>
    </message>
    <!-- The preferences window and the status menu -->
    <message>
        <source>tab.types.settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>tab.types.tools.library</source>
        <translation>Tool Library</translation>
    </message>
    <message>
        <source>tab.types.tutorial</source>
        <translation>Tutorial</translation>
    </message>
    <message>
        <source>tab.types.free_apps</source>
        <translation>Free Apps</translation>
    </message>
    <message>
        <source>tab.types.about</source>
        <translation>About</translation>
    </message>
    <message>
        <source>statusBar.title.setting</source>
        <translation>Settings…</translation>
    </message>
    <message>
        <source>statusBar.title.update</source>
        <translation>Check for Updates…</translation>
    </message>
    <message>
        <source>statusBar.title.plugin</source>
        <translation>Plugins</translation>
    </message>
    <message>
        <source>statusBar.title.about</source>
        <translation>About Orlamo</translation>
    </message>
    <message>
        <source>statusBar.title.quit</source>
        <translation>Quit Orlamo</translation>
    </message>
    <message>
        <source>preference.appearance.auto</source>
        <translation>Automatic</translation>
    </message>
    <message>
        <source>preference.appearance.light</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>preference.appearance.dark</source>
        <translation>Dark</translation>
    </message>
    <!-- Installers and downloads; %@ and %1$@ stand for texts given at run time -->
    <message>
        <source>create.choose.installer.tips.title</source>
        <translation>Choose the installer for %@</translation>
    </message>
    <message>
        <source>create.choose.installer.openPanel.message</source>
        <translation>Choose an installer</translation>
    </message>
    <message>
        <source>create.choose.drive.title</source>
        <translation>Choose a drive</translation>
    </message>
    <message>
        <source>create.choose.disk.tips.title</source>
        <translation>Write %1$@ to the drive %2$@</translation>
    </message>
    <message>
        <source>create.installer.media.warning.title</source>
        <translation>Erase %@?</translation>
    </message>
    <message>
        <source>create.installer.media.alert.messages</source>
        <translation>Everything on %@ will be deleted. This cannot be undone.</translation>
    </message>
    <message>
        <source>task.create.title.preparing</source>
        <translation>Preparing…</translation>
    </message>
    <message>
        <source>task.create.title.cleaning</source>
        <translation>Erasing the drive…</translation>
    </message>
    <message>
        <source>task.create.title.copied</source>
        <translation>Files copied</translation>
    </message>
    <message>
        <source>create.installer.done</source>
        <translation>%@ is ready to use</translation>
    </message>
    <message>
        <source>download.main.tips.title</source>
        <translation>Choose what to download</translation>
    </message>
    <message>
        <source>download.done.alert.title</source>
        <translation>Download finished</translation>
    </message>
    <message>
        <source>download.done.alert.messages</source>
        <translation>%1$@ was saved in %2$@</translation>
    </message>
    <message>
        <source>setting.choose.download.installer.path.title</source>
        <translation>Where to save installers</translation>
    </message>
    <message>
        <source>Tip.title</source>
        <translation>Tip</translation>
    </message>
    <!-- The preferences window -->
    <message>
        <source>preferences.window.title</source>
        <translation>Orlamo Settings</translation>
    </message>
    <message>
        <source>preferences.tabs</source>
        <translation>Pages</translation>
    </message>
    <!-- The page of the settings -->
    <message>
        <source>settings.tip</source>
        <translation>Press the trigger key twice, quickly, in any application: its shortcuts appear in the middle of the screen.</translation>
    </message>
    <message>
        <source>settings.general</source>
        <translation>General</translation>
    </message>
    <message>
        <source>settings.login</source>
        <translation>Open at login</translation>
    </message>
    <message>
        <source>settings.login.description</source>
        <translation>Orlamo is ready as soon as you have logged in.</translation>
    </message>
    <message>
        <source>settings.hide_icon</source>
        <translation>Hide the status icon</translation>
    </message>
    <message>
        <source>settings.hide_icon.description</source>
        <translation>To come back to these settings without the icon, start Orlamo a second time.</translation>
    </message>
    <message>
        <source>settings.taskbar</source>
        <translation>Show windows in the taskbar</translation>
    </message>
    <message>
        <source>settings.taskbar.description</source>
        <translation>Also in the window switcher. Holds until Orlamo quits.</translation>
    </message>
    <message>
        <source>settings.panel</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>settings.trigger</source>
        <translation>Trigger key</translation>
    </message>
    <message>
        <source>settings.trigger.description</source>
        <translation>On a PC keyboard, Command is Ctrl, Control is Super and Shift is Shift.</translation>
    </message>
    <message>
        <source>settings.help</source>
        <translation>How the trigger key works</translation>
    </message>
    <message>
        <source>settings.layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>settings.layout.columns</source>
        <translation>Columns</translation>
    </message>
    <message>
        <source>settings.blur</source>
        <translation>Blurred background</translation>
    </message>
    <message>
        <source>settings.blur.description</source>
        <translation>What lies behind the panel shines through softly.</translation>
    </message>
    <message>
        <source>settings.session_menu</source>
        <translation>Include the session menu</translation>
    </message>
    <message>
        <source>settings.session_menu.description</source>
        <translation>Adds the keys to lock the screen, to log out and the like, where this desktop has them.</translation>
    </message>
    <message>
        <source>settings.session_menu.unknown_desktop</source>
        <translation>Not available: it is there for GNOME, MATE, Cinnamon, Xfce and KDE Plasma.</translation>
    </message>
    <message>
        <source>settings.session_menu.not_bound</source>
        <translation>Not available now: this desktop must have keys to lock, to log out and for two more.</translation>
    </message>
    <message>
        <source>settings.session_menu.no_service</source>
        <translation>Not available now: a service of this desktop that it needs is not running.</translation>
    </message>
    <message>
        <source>settings.look</source>
        <translation>Color and corners</translation>
    </message>
    <message>
        <source>settings.look.description</source>
        <translation>Kept for a later version; the panel does not use them yet.</translation>
    </message>
    <message>
        <source>settings.color</source>
        <translation>Background color</translation>
    </message>
    <message>
        <source>settings.color.choose</source>
        <translation>Choose a color</translation>
    </message>
    <message>
        <source>settings.radius</source>
        <translation>Corner radius</translation>
    </message>
    <message>
        <source>settings.updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>settings.check_updates</source>
        <translation>Check for updates automatically</translation>
    </message>
    <message>
        <source>settings.check_updates.description</source>
        <translation>Kept for a later version. For now Orlamo checks when it starts after more than five days, whatever is chosen here; a packaged Orlamo is updated with its package.</translation>
    </message>
    <message>
        <source>settings.permission</source>
        <translation>Permission</translation>
    </message>
    <message>
        <source>settings.permission.description</source>
        <translation>Orlamo reads the menus of other applications through the accessibility service of this desktop.</translation>
    </message>
    <message>
        <source>settings.permission.help</source>
        <translation>How to give the permission</translation>
    </message>
    <!-- The help beside the trigger key -->
    <message>
        <source>popover.title</source>
        <translation>How the panel opens</translation>
    </message>
    <message>
        <source>popover.open</source>
        <translation>Press the trigger key twice within half a second, with no other modifier held.</translation>
    </message>
    <message>
        <source>popover.hold</source>
        <translation>While the panel is open, hold modifiers: what they reach turns teal.</translation>
    </message>
    <message>
        <source>popover.close</source>
        <translation>The same double press, Escape or a click in another application closes it.</translation>
    </message>
    <!-- The tutorial -->
    <message>
        <source>tutorial.lead</source>
        <translation>Four things to know, and every shortcut is at hand.</translation>
    </message>
    <message>
        <source>tutorial.open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>tutorial.open.description</source>
        <translation>Press the trigger key twice, quickly. It is Ctrl, unless you chose another one in the settings. The panel shows the shortcuts of the application in front, and those of the desktop beside them.</translation>
    </message>
    <message>
        <source>tutorial.find</source>
        <translation>Find</translation>
    </message>
    <message>
        <source>tutorial.find.description</source>
        <translation>Hold Ctrl, Alt, Shift or Super: shortcuts with exactly the keys held turn teal.</translation>
    </message>
    <message>
        <source>tutorial.click</source>
        <translation>Click</translation>
    </message>
    <message>
        <source>tutorial.click.description</source>
        <translation>A click on a shortcut does what it stands for, as if you had typed it.</translation>
    </message>
    <message>
        <source>tutorial.close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>tutorial.close.description</source>
        <translation>Press the trigger key twice again or Escape, or click in another application.</translation>
    </message>
    <message>
        <source>tutorial.video</source>
        <translation>Watch the Video</translation>
    </message>
    <message>
        <source>tutorial.questions</source>
        <translation>Questions and Answers</translation>
    </message>
    <!-- The applications of the publisher -->
    <message>
        <source>freeapps.lead</source>
        <translation>Small, calm tools from the makers of Orlamo.</translation>
    </message>
    <message>
        <source>freeapps.website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>freeapps.more</source>
        <translation>More Applications</translation>
    </message>
    <message>
        <source>freeapps.orlamo.desc</source>
        <translation>All shortcuts of the application in front, at a glance.</translation>
    </message>
    <message>
        <source>freeapps.tavlumi.desc</source>
        <translation>Remembers what you copied before and gives it back.</translation>
    </message>
    <message>
        <source>freeapps.brenquo.desc</source>
        <translation>Puts windows side by side with one key.</translation>
    </message>
    <message>
        <source>freeapps.oskelid.desc</source>
        <translation>A ruler for everything on the screen.</translation>
    </message>
    <message>
        <source>freeapps.pirvanto.desc</source>
        <translation>Renames many files at once and shows the result first.</translation>
    </message>
    <message>
        <source>freeapps.zelmoru.desc</source>
        <translation>Work and breaks by the clock.</translation>
    </message>
    <message>
        <source>freeapps.fenzavo.desc</source>
        <translation>Types whole phrases from short abbreviations.</translation>
    </message>
    <message>
        <source>freeapps.murtiglo.desc</source>
        <translation>Shows what fills your disk.</translation>
    </message>
    <message>
        <source>freeapps.yarpeno.desc</source>
        <translation>Notes in plain text, always at hand.</translation>
    </message>
    <!-- The page about the program -->
    <message>
        <source>about.lead</source>
        <translation>All shortcuts at a glance.</translation>
    </message>
    <message>
        <source>about.support</source>
        <translation>Support</translation>
    </message>
    <message>
        <source>about.support.description</source>
        <translation>Something does not work, or you have an idea? Tell us.</translation>
    </message>
    <message>
        <source>about.support.open</source>
        <translation>Get Support</translation>
    </message>
    <message>
        <source>about.chat</source>
        <translation>Chat group</translation>
    </message>
    <message>
        <source>about.chat.description</source>
        <translation>Talk with others who use Orlamo.</translation>
    </message>
    <message>
        <source>about.chat.open</source>
        <translation>Join the Chat</translation>
    </message>
    <!-- The permission window -->
    <message>
        <source>permission.window.title</source>
        <translation>Orlamo Needs a Permission</translation>
    </message>
    <message>
        <source>permission.title</source>
        <translation>May Orlamo read menus?</translation>
    </message>
    <message>
        <source>permission.reason</source>
        <translation>To list the shortcuts of an application, Orlamo reads its menus through the accessibility service of this desktop, and that is switched off. What it reads stays on this computer.</translation>
    </message>
    <message>
        <source>accessibility.permission.gained</source>
        <translation>Accessibility is switched on</translation>
    </message>
    <message>
        <source>accessibility.permission.not.obtained</source>
        <translation>Accessibility is switched off</translation>
    </message>
    <message>
        <source>permission.screen_recording</source>
        <translation>Screen recording</translation>
    </message>
    <message>
        <source>permission.full_disk_access</source>
        <translation>Full disk access</translation>
    </message>
    <message>
        <source>permission.allow</source>
        <translation>Switch On</translation>
    </message>
    <message>
        <source>permission.help</source>
        <translation>What does this mean?</translation>
    </message>
    <message>
        <source>permission.later</source>
        <translation>Later</translation>
    </message>
    <!-- The window that looks for updates -->
    <message>
        <source>update.window.title</source>
        <translation>Software Update</translation>
    </message>
    <message>
        <source>update.checking.title</source>
        <translation>Looking for updates…</translation>
    </message>
    <message>
        <source>update.upToDate.title</source>
        <translation>Orlamo is up to date</translation>
    </message>
    <message>
        <source>update.upToDate.message</source>
        <translation>You have version %@. There is no newer one.</translation>
    </message>
    <message>
        <source>update.newVersion.title</source>
        <translation>Orlamo %@ is available</translation>
    </message>
    <message>
        <source>update.newVersion.message</source>
        <translation>You have version %@. The page of the new one says how to get it.</translation>
    </message>
    <message>
        <source>update.newVersion.noPage</source>
        <translation>You have version %@. No page of the new one is known; look where you got Orlamo from.</translation>
    </message>
    <message>
        <source>update.newVersion.pageFailed</source>
        <translation>Nothing on this computer could open %@</translation>
    </message>
    <message>
        <source>update.notes</source>
        <translation>What is new</translation>
    </message>
    <message>
        <source>update.package.title</source>
        <translation>Updates come with the package</translation>
    </message>
    <message>
        <source>update.package.message</source>
        <translation>This copy of Orlamo was installed as a package and is updated together with your system.</translation>
    </message>
    <message>
        <source>update.failed.title</source>
        <translation>Could not look for updates</translation>
    </message>
    <message>
        <source>update.failed.address</source>
        <translation>The address for updates is not a secure one (https), so it was not used.</translation>
    </message>
    <message>
        <source>update.failed.insecureRedirect</source>
        <translation>The update server sent on to an address that is not secure. Nothing was fetched from there.</translation>
    </message>
    <message>
        <source>update.failed.tooManyRedirects</source>
        <translation>The update server sent on from address to address without an end.</translation>
    </message>
    <message>
        <source>update.failed.unreachable</source>
        <translation>The update server could not be reached, or the connection broke off. Check your connection and try again.</translation>
    </message>
    <message>
        <source>update.failed.untrusted</source>
        <translation>The update server could not prove who it is. Its certificate may have expired; the date of this computer may be wrong, too.</translation>
    </message>
    <message>
        <source>update.failed.timedOut</source>
        <translation>The update server did not answer in time. Try again later.</translation>
    </message>
    <message>
        <source>update.failed.refused</source>
        <translation>The update server has no list of versions at its address. Try again later.</translation>
    </message>
    <message>
        <source>update.failed.tooLarge</source>
        <translation>The update server sent more than a list of versions can be. It was not read.</translation>
    </message>
    <message>
        <source>update.failed.unreadable</source>
        <translation>What the update server sent is not a list of versions.</translation>
    </message>
    <message>
        <source>update.button.openPage</source>
        <translation>Open Its Page</translation>
    </message>
    <message>
        <source>update.button.later</source>
        <translation>Later</translation>
    </message>
    <message>
        <source>update.button.close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>update.button.cancel</source>
        <translation>Cancel</translation>
    </message>
    <!-- The second launch -->
    <message>
        <source>instance.noAnswer.title</source>
        <translation>Orlamo is running, but does not answer</translation>
    </message>
    <message>
        <source>instance.noAnswer.message</source>
        <translation>Wait a moment and try again. If that does not help, quit Orlamo, or end it in the system monitor of this desktop, and start it anew.</translation>
    </message>
</context>
</TS>
