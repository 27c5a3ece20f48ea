<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!--
  The texts that the program asks for by key, in German: Sie, keys as German keyboards print them (Strg, Alt,
  Umschalt, Super). A cell of the panel shortens what is wider than 150 points at 13; a heading with a slash is shown
  by its second part.
  Words: shortcut Tastenkürzel, panel (of Orlamo) Panel, panel (of a desktop) Leiste, trigger key Auslösetaste,
  overview Übersicht, workspace Arbeitsfläche, desktop Schreibtisch (with its programs: Arbeitsumgebung),
  accessibility Barrierefreiheit, screen reader Bildschirmleser, session Sitzung, status icon Statussymbol,
  update Aktualisierung, permission Berechtigung.
-->
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- The panel: headings -->
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Launchpad &amp; Dock</source>
        <translation>Anwendungen &amp; Dock</translation>
    </message>
    <message>
        <source>Mission Contrl</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Mission Contrl/Mission Contrl</source>
        <translation>Übersicht/Arbeitsflächen</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Tastatur</translation>
    </message>
    <message>
        <source>Input Sources</source>
        <translation>Eingabequellen</translation>
    </message>
    <message>
        <source>Screen Shots</source>
        <translation>Bildschirmfotos</translation>
    </message>
    <message>
        <source>Spotlight</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Barrierefreiheit</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Vergrößerung</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>App Shortcuts</source>
        <translation>Anwendungen</translation>
    </message>
    <message>
        <source>All Applications</source>
        <translation>Alle Anwendungen</translation>
    </message>
    <!-- The panel: cells -->
    <message>
        <source>Turn Dock Hiding On/Off</source>
        <translation>Dock ausblenden</translation>
    </message>
    <message>
        <source>Show Launchpad</source>
        <translation>Anwendungen zeigen</translation>
    </message>
    <message>
        <source>Show Notification Center</source>
        <translation>Benachrichtigungen</translation>
    </message>
    <message>
        <source>Turn Do Not Disturb On/Off</source>
        <translation>Nicht stören an/aus</translation>
    </message>
    <message>
        <source>Application Windows</source>
        <translation>Anwendungsfenster</translation>
    </message>
    <message>
        <source>Show Desktop</source>
        <translation>Schreibtisch anzeigen</translation>
    </message>
    <message>
        <source>Show Dashboard</source>
        <translation>Widgets anzeigen</translation>
    </message>
    <message>
        <source>Move left a space</source>
        <translation>Arbeitsfläche links</translation>
    </message>
    <message>
        <source>Move right a space</source>
        <translation>Arbeitsfläche rechts</translation>
    </message>
    <message>
        <source>Switch to Desktop 1</source>
        <translation>Zu Arbeitsfläche 1</translation>
    </message>
    <message>
        <source>Switch to Desktop 2</source>
        <translation>Zu Arbeitsfläche 2</translation>
    </message>
    <message>
        <source>Switch to Desktop 3</source>
        <translation>Zu Arbeitsfläche 3</translation>
    </message>
    <message>
        <source>Switch to Desktop 4</source>
        <translation>Zu Arbeitsfläche 4</translation>
    </message>
    <message>
        <source>Change the way Tab moves focus</source>
        <translation>Tab-Fokus ändern</translation>
    </message>
    <message>
        <source>Turn keyboard access on or off</source>
        <translation>Tastaturzugriff</translation>
    </message>
    <message>
        <source>Move focus to the menu bar</source>
        <translation>Zur Menüleiste</translation>
    </message>
    <message>
        <source>Move focus to the Dock</source>
        <translation>Zu Dock oder Leiste</translation>
    </message>
    <message>
        <source>Move focus to active or next window</source>
        <translation>Fenster wechseln</translation>
    </message>
    <message>
        <source>Move focus to window toolbar</source>
        <translation>Zur Werkzeugleiste</translation>
    </message>
    <message>
        <source>Move focus to floating window</source>
        <translation>Schwebendes Fenster</translation>
    </message>
    <message>
        <source>Move focus to next window</source>
        <translation>Nächstes App-Fenster</translation>
    </message>
    <message>
        <source>Move focus to the window drawer</source>
        <translation>Zur Seitenleiste</translation>
    </message>
    <message>
        <source>Move focus to the status menus</source>
        <translation>Systemmenü öffnen</translation>
    </message>
    <message>
        <source>Show/Hide Trackpad Handwriting</source>
        <translation>Handschrift an/aus</translation>
    </message>
    <message>
        <source>Select the previous input source</source>
        <translation>Vorige Eingabequelle</translation>
    </message>
    <message>
        <source>Select next source in the Input Menu</source>
        <translation>Nächste Eingabequelle</translation>
    </message>
    <message>
        <source>Save picture of screen as file</source>
        <translation>Bildschirm speichern</translation>
    </message>
    <message>
        <source>Copy picture of screen to the clipboard</source>
        <translation>Bildschirm kopieren</translation>
    </message>
    <message>
        <source>Save picture of selected area as file</source>
        <translation>Bereich speichern</translation>
    </message>
    <message>
        <source>Copy picture of selected area to clipboard</source>
        <translation>Bereich kopieren</translation>
    </message>
    <message>
        <source>Show Spotlight search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Show Finder search window</source>
        <translation>Suchfenster anzeigen</translation>
    </message>
    <message>
        <source>Turn zoom on or off</source>
        <translation>Vergrößerung an/aus</translation>
    </message>
    <message>
        <source>Turn image smoothing on or off</source>
        <translation>Glättung an/aus</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Turn focus following on or off</source>
        <translation>Fokus folgen an/aus</translation>
    </message>
    <message>
        <source>Increase contrast</source>
        <translation>Hoher Kontrast an/aus</translation>
    </message>
    <message>
        <source>Decrease contrast</source>
        <translation>Kontrast verringern</translation>
    </message>
    <message>
        <source>Invert colors</source>
        <translation>Farben invertieren</translation>
    </message>
    <message>
        <source>Turn VoiceOver on or off</source>
        <translation>Bildschirmleser an/aus</translation>
    </message>
    <message>
        <source>Show Accessibility controls</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Show Help Menu</source>
        <translation>Hilfe anzeigen</translation>
    </message>
    <!-- The name of the Ctrl key in the panel; it and "Alt" must stay below 50 points at 14 -->
    <message>
        <source>keyboard.ctrl</source>
        <translation>Strg</translation>
    </message>
    <!-- The panel: the session menu. These must not be shortened: below 150 points at 13 -->
    <message>
        <source>session.lock</source>
        <translation>Bildschirm sperren</translation>
    </message>
    <message>
        <source>session.log_out</source>
        <translation>Abmelden …</translation>
    </message>
    <message>
        <source>session.shut_down</source>
        <translation>Ausschalten …</translation>
    </message>
    <message>
        <source>session.overview</source>
        <translation>Übersicht anzeigen</translation>
    </message>
    <message>
        <source>session.show_desktop</source>
        <translation>Schreibtisch anzeigen</translation>
    </message>
    <message>
        <source>session.home</source>
        <translation>Persönlicher Ordner</translation>
    </message>
    <message>
        <source>session.files</source>
        <translation>Dateiverwaltung</translation>
    </message>
    <message>
        <source>session.terminal</source>
        <translation>Terminal öffnen</translation>
    </message>
    <message>
        <source>session.settings</source>
        <translation>Systemeinstellungen</translation>
    </message>
    <message>
        <source>session.run</source>
        <translation>Befehl ausführen …</translation>
    </message>
    <message>
        <source>session.minimize</source>
        <translation>Fenster minimieren</translation>
    </message>
    <message>
        <source>session.tasks</source>
        <translation>Systemüberwachung</translation>
    </message>
    <!-- The preferences window and the status menu -->
    <message>
        <source>tab.types.settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>tab.types.tools.library</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>tab.types.tutorial</source>
        <translation>Anleitung</translation>
    </message>
    <message>
        <source>tab.types.free_apps</source>
        <translation>Kostenlose Apps</translation>
    </message>
    <message>
        <source>tab.types.about</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>statusBar.title.setting</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>statusBar.title.update</source>
        <translation>Nach Aktualisierungen suchen …</translation>
    </message>
    <message>
        <source>statusBar.title.plugin</source>
        <translation>Erweiterungen</translation>
    </message>
    <message>
        <source>statusBar.title.about</source>
        <translation>Info zu Orlamo</translation>
    </message>
    <message>
        <source>statusBar.title.quit</source>
        <translation>Orlamo beenden</translation>
    </message>
    <message>
        <source>preference.appearance.auto</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>preference.appearance.light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>preference.appearance.dark</source>
        <translation>Dunkel</translation>
    </message>
    <!-- Installers and downloads; %@ and %1$@ stand for texts given at run time -->
    <message>
        <source>create.choose.installer.tips.title</source>
        <translation>Installationsprogramm für %@ auswählen</translation>
    </message>
    <message>
        <source>create.choose.installer.openPanel.message</source>
        <translation>Wählen Sie ein Installationsprogramm aus</translation>
    </message>
    <message>
        <source>create.choose.drive.title</source>
        <translation>Laufwerk auswählen</translation>
    </message>
    <message>
        <source>create.choose.disk.tips.title</source>
        <translation>%1$@ auf das Laufwerk %2$@ schreiben</translation>
    </message>
    <message>
        <source>create.installer.media.warning.title</source>
        <translation>%@ löschen?</translation>
    </message>
    <message>
        <source>create.installer.media.alert.messages</source>
        <translation>Alle Daten auf %@ werden gelöscht. Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>task.create.title.preparing</source>
        <translation>Wird vorbereitet …</translation>
    </message>
    <message>
        <source>task.create.title.cleaning</source>
        <translation>Laufwerk wird gelöscht …</translation>
    </message>
    <message>
        <source>task.create.title.copied</source>
        <translation>Dateien kopiert</translation>
    </message>
    <message>
        <source>create.installer.done</source>
        <translation>%@ ist einsatzbereit</translation>
    </message>
    <message>
        <source>download.main.tips.title</source>
        <translation>Wählen Sie, was heruntergeladen werden soll</translation>
    </message>
    <message>
        <source>download.done.alert.title</source>
        <translation>Download abgeschlossen</translation>
    </message>
    <message>
        <source>download.done.alert.messages</source>
        <translation>%1$@ wurde unter %2$@ gespeichert</translation>
    </message>
    <message>
        <source>setting.choose.download.installer.path.title</source>
        <translation>Speicherort für Installationsprogramme</translation>
    </message>
    <message>
        <source>Tip.title</source>
        <translation>Tipp</translation>
    </message>
    <!-- The preferences window -->
    <message>
        <source>preferences.window.title</source>
        <translation>Orlamo-Einstellungen</translation>
    </message>
    <message>
        <source>preferences.tabs</source>
        <translation>Seiten</translation>
    </message>
    <!-- The page of the settings -->
    <message>
        <source>settings.tip</source>
        <translation>Drücken Sie in einer beliebigen Anwendung zweimal schnell die Auslösetaste: Ihre Tastenkürzel erscheinen in der Bildschirmmitte.</translation>
    </message>
    <message>
        <source>settings.general</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>settings.login</source>
        <translation>Beim Anmelden starten</translation>
    </message>
    <message>
        <source>settings.login.description</source>
        <translation>Orlamo ist bereit, sobald Sie angemeldet sind.</translation>
    </message>
    <message>
        <source>settings.hide_icon</source>
        <translation>Statussymbol ausblenden</translation>
    </message>
    <message>
        <source>settings.hide_icon.description</source>
        <translation>Ohne Symbol: Starten Sie Orlamo ein zweites Mal, um hierher zurückzukommen.</translation>
    </message>
    <message>
        <source>settings.taskbar</source>
        <translation>Fenster in der Taskleiste anzeigen</translation>
    </message>
    <message>
        <source>settings.taskbar.description</source>
        <translation>Auch beim Fensterwechsel. Gilt, bis Orlamo beendet wird.</translation>
    </message>
    <message>
        <source>settings.panel</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>settings.trigger</source>
        <translation>Auslösetaste</translation>
    </message>
    <message>
        <source>settings.trigger.description</source>
        <translation>Auf einer PC-Tastatur ist Command die Taste Strg, Control die Super-Taste und Shift die Umschalttaste.</translation>
    </message>
    <message>
        <source>settings.help</source>
        <translation>So funktioniert die Auslösetaste</translation>
    </message>
    <message>
        <source>settings.layout</source>
        <translation>Anordnung</translation>
    </message>
    <message>
        <source>settings.layout.columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>settings.blur</source>
        <translation>Unscharfer Hintergrund</translation>
    </message>
    <message>
        <source>settings.blur.description</source>
        <translation>Was hinter dem Panel liegt, scheint weichgezeichnet durch.</translation>
    </message>
    <message>
        <source>settings.session_menu</source>
        <translation>Sitzungsmenü einbeziehen</translation>
    </message>
    <message>
        <source>settings.session_menu.description</source>
        <translation>Zeigt auch die Tasten zum Sperren des Bildschirms, zum Abmelden und Ähnliches, sofern diese Arbeitsumgebung sie hat.</translation>
    </message>
    <message>
        <source>settings.session_menu.unknown_desktop</source>
        <translation>Nicht verfügbar: Es gibt das Menü für GNOME, MATE, Cinnamon, Xfce und KDE Plasma.</translation>
    </message>
    <message>
        <source>settings.session_menu.not_bound</source>
        <translation>Derzeit nicht verfügbar: Diese Arbeitsumgebung braucht Tasten zum Sperren, zum Abmelden und für zwei weitere Befehle.</translation>
    </message>
    <message>
        <source>settings.session_menu.no_service</source>
        <translation>Derzeit nicht verfügbar: Ein benötigter Dienst dieser Arbeitsumgebung läuft nicht.</translation>
    </message>
    <message>
        <source>settings.look</source>
        <translation>Farbe und Ecken</translation>
    </message>
    <message>
        <source>settings.look.description</source>
        <translation>Für eine spätere Version vorgemerkt; das Panel verwendet sie noch nicht.</translation>
    </message>
    <message>
        <source>settings.color</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <source>settings.color.choose</source>
        <translation>Farbe auswählen</translation>
    </message>
    <message>
        <source>settings.radius</source>
        <translation>Eckenradius</translation>
    </message>
    <message>
        <source>settings.updates</source>
        <translation>Aktualisierungen</translation>
    </message>
    <message>
        <source>settings.check_updates</source>
        <translation>Automatisch nach Aktualisierungen suchen</translation>
    </message>
    <message>
        <source>settings.check_updates.description</source>
        <translation>Für eine spätere Version vorgemerkt. Bis dahin sucht Orlamo unabhängig von dieser Einstellung, wenn es nach mehr als fünf Tagen wieder gestartet wird; ein als Paket installiertes Orlamo wird mit seinem Paket aktualisiert.</translation>
    </message>
    <message>
        <source>settings.permission</source>
        <translation>Berechtigung</translation>
    </message>
    <message>
        <source>settings.permission.description</source>
        <translation>Orlamo liest die Menüs anderer Anwendungen über den Barrierefreiheitsdienst dieser Arbeitsumgebung.</translation>
    </message>
    <message>
        <source>settings.permission.help</source>
        <translation>So erteilen Sie die Berechtigung</translation>
    </message>
    <!-- The help beside the trigger key -->
    <message>
        <source>popover.title</source>
        <translation>So öffnet sich das Panel</translation>
    </message>
    <message>
        <source>popover.open</source>
        <translation>Drücken Sie die Auslösetaste zweimal innerhalb einer halben Sekunde, ohne eine andere Zusatztaste zu halten.</translation>
    </message>
    <message>
        <source>popover.hold</source>
        <translation>Halten Sie bei geöffnetem Panel Strg, Alt, Umschalt oder Super gedrückt: Was sich damit erreichen lässt, wird türkis.</translation>
    </message>
    <message>
        <source>popover.close</source>
        <translation>Zweimaliges Drücken, Esc oder ein Klick in eine andere Anwendung schließt es.</translation>
    </message>
    <!-- The tutorial -->
    <message>
        <source>tutorial.lead</source>
        <translation>Vier Dinge sollten Sie wissen, dann haben Sie jedes Tastenkürzel zur Hand.</translation>
    </message>
    <message>
        <source>tutorial.open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>tutorial.open.description</source>
        <translation>Drücken Sie zweimal schnell die Auslösetaste. Das ist Strg, sofern Sie in den Einstellungen keine andere gewählt haben. Das Panel zeigt die Tastenkürzel der Anwendung im Vordergrund und daneben die der Arbeitsumgebung.</translation>
    </message>
    <message>
        <source>tutorial.find</source>
        <translation>Finden</translation>
    </message>
    <message>
        <source>tutorial.find.description</source>
        <translation>Halten Sie Strg, Alt, Umschalt oder Super gedrückt: Die Tastenkürzel mit genau den gehaltenen Tasten werden türkis.</translation>
    </message>
    <message>
        <source>tutorial.click</source>
        <translation>Klicken</translation>
    </message>
    <message>
        <source>tutorial.click.description</source>
        <translation>Ein Klick auf ein Tastenkürzel bewirkt dasselbe, als hätten Sie es eingegeben.</translation>
    </message>
    <message>
        <source>tutorial.close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>tutorial.close.description</source>
        <translation>Drücken Sie erneut zweimal die Auslösetaste oder einmal Esc, oder klicken Sie in eine andere Anwendung.</translation>
    </message>
    <message>
        <source>tutorial.video</source>
        <translation>Video ansehen</translation>
    </message>
    <message>
        <source>tutorial.questions</source>
        <translation>Fragen und Antworten</translation>
    </message>
    <!-- The applications of the publisher -->
    <message>
        <source>freeapps.lead</source>
        <translation>Kleine, unaufdringliche Werkzeuge von den Machern von Orlamo.</translation>
    </message>
    <message>
        <source>freeapps.website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>freeapps.more</source>
        <translation>Weitere Anwendungen</translation>
    </message>
    <message>
        <source>freeapps.orlamo.desc</source>
        <translation>Alle Tastenkürzel der Anwendung im Vordergrund auf einen Blick.</translation>
    </message>
    <message>
        <source>freeapps.tavlumi.desc</source>
        <translation>Merkt sich, was Sie kopiert haben, und gibt es zurück.</translation>
    </message>
    <message>
        <source>freeapps.brenquo.desc</source>
        <translation>Ordnet Fenster mit einer Taste nebeneinander an.</translation>
    </message>
    <message>
        <source>freeapps.oskelid.desc</source>
        <translation>Ein Lineal für alles auf dem Bildschirm.</translation>
    </message>
    <message>
        <source>freeapps.pirvanto.desc</source>
        <translation>Benennt viele Dateien auf einmal um und zeigt vorher das Ergebnis.</translation>
    </message>
    <message>
        <source>freeapps.zelmoru.desc</source>
        <translation>Arbeit und Pausen nach der Uhr.</translation>
    </message>
    <message>
        <source>freeapps.fenzavo.desc</source>
        <translation>Schreibt ganze Sätze aus kurzen Abkürzungen.</translation>
    </message>
    <message>
        <source>freeapps.murtiglo.desc</source>
        <translation>Zeigt, was Ihre Festplatte füllt.</translation>
    </message>
    <message>
        <source>freeapps.yarpeno.desc</source>
        <translation>Notizen als reiner Text, immer zur Hand.</translation>
    </message>
    <!-- The page about the program -->
    <message>
        <source>about.lead</source>
        <translation>Alle Tastenkürzel auf einen Blick.</translation>
    </message>
    <message>
        <source>about.support</source>
        <translation>Unterstützung</translation>
    </message>
    <message>
        <source>about.support.description</source>
        <translation>Ein Problem oder eine Idee? Schreiben Sie uns.</translation>
    </message>
    <message>
        <source>about.support.open</source>
        <translation>Hilfe erhalten</translation>
    </message>
    <message>
        <source>about.chat</source>
        <translation>Chatgruppe</translation>
    </message>
    <message>
        <source>about.chat.description</source>
        <translation>Tauschen Sie sich mit anderen aus, die Orlamo verwenden.</translation>
    </message>
    <message>
        <source>about.chat.open</source>
        <translation>Chat beitreten</translation>
    </message>
    <!-- The permission window -->
    <message>
        <source>permission.window.title</source>
        <translation>Orlamo benötigt eine Berechtigung</translation>
    </message>
    <message>
        <source>permission.title</source>
        <translation>Darf Orlamo Menüs lesen?</translation>
    </message>
    <message>
        <source>permission.reason</source>
        <translation>Um die Tastenkürzel einer Anwendung aufzulisten, liest Orlamo deren Menüs über den Barrierefreiheitsdienst dieser Arbeitsumgebung, und der ist ausgeschaltet. Was es liest, bleibt auf diesem Rechner.</translation>
    </message>
    <message>
        <source>accessibility.permission.gained</source>
        <translation>Barrierefreiheit ist eingeschaltet</translation>
    </message>
    <message>
        <source>accessibility.permission.not.obtained</source>
        <translation>Barrierefreiheit ist ausgeschaltet</translation>
    </message>
    <message>
        <source>permission.screen_recording</source>
        <translation>Bildschirmaufnahme</translation>
    </message>
    <message>
        <source>permission.full_disk_access</source>
        <translation>Voller Festplattenzugriff</translation>
    </message>
    <message>
        <source>permission.allow</source>
        <translation>Einschalten</translation>
    </message>
    <message>
        <source>permission.help</source>
        <translation>Was bedeutet das?</translation>
    </message>
    <message>
        <source>permission.later</source>
        <translation>Später</translation>
    </message>
    <!-- The window that looks for updates -->
    <message>
        <source>update.window.title</source>
        <translation>Softwareaktualisierung</translation>
    </message>
    <message>
        <source>update.checking.title</source>
        <translation>Es wird nach Aktualisierungen gesucht …</translation>
    </message>
    <message>
        <source>update.upToDate.title</source>
        <translation>Orlamo ist auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>update.upToDate.message</source>
        <translation>Sie haben die Version %@. Es gibt keine neuere.</translation>
    </message>
    <message>
        <source>update.newVersion.title</source>
        <translation>Orlamo %@ ist verfügbar</translation>
    </message>
    <message>
        <source>update.newVersion.message</source>
        <translation>Sie haben die Version %@. Auf der Seite der neuen Version steht, wie Sie sie erhalten.</translation>
    </message>
    <message>
        <source>update.newVersion.noPage</source>
        <translation>Sie haben die Version %@. Eine Seite der neuen Version ist nicht bekannt; sehen Sie dort nach, woher Sie Orlamo haben.</translation>
    </message>
    <message>
        <source>update.newVersion.pageFailed</source>
        <translation>Auf diesem Rechner konnte nichts %@ öffnen</translation>
    </message>
    <message>
        <source>update.notes</source>
        <translation>Neuerungen</translation>
    </message>
    <message>
        <source>update.package.title</source>
        <translation>Aktualisierungen kommen mit dem Paket</translation>
    </message>
    <message>
        <source>update.package.message</source>
        <translation>Dieses Orlamo wurde als Paket installiert und wird zusammen mit Ihrem System aktualisiert.</translation>
    </message>
    <message>
        <source>update.failed.title</source>
        <translation>Suche nach Aktualisierungen fehlgeschlagen</translation>
    </message>
    <message>
        <source>update.failed.address</source>
        <translation>Die Adresse für Aktualisierungen ist keine sichere (https) und wurde deshalb nicht verwendet.</translation>
    </message>
    <message>
        <source>update.failed.insecureRedirect</source>
        <translation>Der Aktualisierungsserver verwies auf eine Adresse, die nicht sicher ist. Von dort wurde nichts abgerufen.</translation>
    </message>
    <message>
        <source>update.failed.tooManyRedirects</source>
        <translation>Der Aktualisierungsserver verwies endlos von einer Adresse auf die nächste.</translation>
    </message>
    <message>
        <source>update.failed.unreachable</source>
        <translation>Der Aktualisierungsserver ist nicht erreichbar, oder die Verbindung brach ab. Überprüfen Sie Ihre Verbindung und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>update.failed.untrusted</source>
        <translation>Der Aktualisierungsserver konnte sich nicht ausweisen. Vielleicht ist sein Zertifikat abgelaufen; auch das Datum dieses Rechners könnte falsch sein.</translation>
    </message>
    <message>
        <source>update.failed.timedOut</source>
        <translation>Der Aktualisierungsserver hat nicht rechtzeitig geantwortet. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>update.failed.refused</source>
        <translation>Der Aktualisierungsserver hat unter seiner Adresse keine Versionsliste. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>update.failed.tooLarge</source>
        <translation>Der Aktualisierungsserver hat mehr gesendet, als eine Versionsliste umfassen kann. Es wurde nicht gelesen.</translation>
    </message>
    <message>
        <source>update.failed.unreadable</source>
        <translation>Was der Aktualisierungsserver gesendet hat, ist keine Versionsliste.</translation>
    </message>
    <message>
        <source>update.button.openPage</source>
        <translation>Seite öffnen</translation>
    </message>
    <message>
        <source>update.button.later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>update.button.close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>update.button.cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <!-- The second launch -->
    <message>
        <source>instance.noAnswer.title</source>
        <translation>Orlamo läuft, antwortet aber nicht</translation>
    </message>
    <message>
        <source>instance.noAnswer.message</source>
        <translation>Warten Sie einen Moment und versuchen Sie es noch einmal. Wenn das nicht hilft, beenden Sie Orlamo, notfalls in der Systemüberwachung dieser Arbeitsumgebung, und starten Sie es neu.</translation>
    </message>
</context>
</TS>
