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
</context>
</TS>
