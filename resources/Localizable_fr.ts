<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!--
  The texts that the program asks for by key, in French: no-break spaces before : and inside « », narrow ones before
  ; ? !, keys as French keyboards print them (Ctrl, Alt, Maj, Super, Échap). A cell of the panel shortens what is wider
  than 150 points at 13; a heading with a slash is shown by its second part.
  Words: shortcut raccourci, panel (of Orlamo) panneau, panel (of a desktop) panneau, trigger key touche de
  déclenchement, overview vue d’ensemble, workspace espace de travail, desktop bureau, accessibility accessibilité,
  screen reader lecteur d’écran, session session, status icon icône d’état, update mise à jour, permission autorisation.
-->
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- The panel: headings -->
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Launchpad &amp; Dock</source>
        <translation>Applications et dock</translation>
    </message>
    <message>
        <source>Mission Contrl</source>
        <translation>Vue d’ensemble</translation>
    </message>
    <message>
        <source>Mission Contrl/Mission Contrl</source>
        <translation>Vue d’ensemble/Espaces de travail</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Clavier</translation>
    </message>
    <message>
        <source>Input Sources</source>
        <translation>Sources de saisie</translation>
    </message>
    <message>
        <source>Screen Shots</source>
        <translation>Captures d’écran</translation>
    </message>
    <message>
        <source>Spotlight</source>
        <translation>Recherche</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Accessibilité</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>App Shortcuts</source>
        <translation>Applications</translation>
    </message>
    <message>
        <source>All Applications</source>
        <translation>Toutes les applications</translation>
    </message>
    <!-- The panel: cells -->
    <message>
        <source>Turn Dock Hiding On/Off</source>
        <translation>Masquage du dock</translation>
    </message>
    <message>
        <source>Show Launchpad</source>
        <translation>Voir les applications</translation>
    </message>
    <message>
        <source>Show Notification Center</source>
        <translation>Voir les notifications</translation>
    </message>
    <message>
        <source>Turn Do Not Disturb On/Off</source>
        <translation>Ne pas déranger</translation>
    </message>
    <message>
        <source>Application Windows</source>
        <translation>Fenêtres de l’appli</translation>
    </message>
    <message>
        <source>Show Desktop</source>
        <translation>Afficher le bureau</translation>
    </message>
    <message>
        <source>Show Dashboard</source>
        <translation>Afficher les widgets</translation>
    </message>
    <message>
        <source>Move left a space</source>
        <translation>Espace à gauche</translation>
    </message>
    <message>
        <source>Move right a space</source>
        <translation>Espace à droite</translation>
    </message>
    <message>
        <source>Switch to Desktop 1</source>
        <translation>Aller à l’espace 1</translation>
    </message>
    <message>
        <source>Switch to Desktop 2</source>
        <translation>Aller à l’espace 2</translation>
    </message>
    <message>
        <source>Switch to Desktop 3</source>
        <translation>Aller à l’espace 3</translation>
    </message>
    <message>
        <source>Switch to Desktop 4</source>
        <translation>Aller à l’espace 4</translation>
    </message>
    <message>
        <source>Change the way Tab moves focus</source>
        <translation>Focus de la touche Tab</translation>
    </message>
    <message>
        <source>Turn keyboard access on or off</source>
        <translation>Accès clavier</translation>
    </message>
    <message>
        <source>Move focus to the menu bar</source>
        <translation>Vers la barre de menu</translation>
    </message>
    <message>
        <source>Move focus to the Dock</source>
        <translation>Vers dock ou panneau</translation>
    </message>
    <message>
        <source>Move focus to active or next window</source>
        <translation>Changer de fenêtre</translation>
    </message>
    <message>
        <source>Move focus to window toolbar</source>
        <translation>Vers la barre d’outils</translation>
    </message>
    <message>
        <source>Move focus to floating window</source>
        <translation>Fenêtre flottante</translation>
    </message>
    <message>
        <source>Move focus to next window</source>
        <translation>Fenêtre suivante</translation>
    </message>
    <message>
        <source>Move focus to the window drawer</source>
        <translation>Vers le volet latéral</translation>
    </message>
    <message>
        <source>Move focus to the status menus</source>
        <translation>Menu système</translation>
    </message>
    <message>
        <source>Show/Hide Trackpad Handwriting</source>
        <translation>Écriture manuscrite</translation>
    </message>
    <message>
        <source>Select the previous input source</source>
        <translation>Source précédente</translation>
    </message>
    <message>
        <source>Select next source in the Input Menu</source>
        <translation>Source suivante</translation>
    </message>
    <message>
        <source>Save picture of screen as file</source>
        <translation>Enregistrer l’écran</translation>
    </message>
    <message>
        <source>Copy picture of screen to the clipboard</source>
        <translation>Copier l’écran</translation>
    </message>
    <message>
        <source>Save picture of selected area as file</source>
        <translation>Enregistrer la sélection</translation>
    </message>
    <message>
        <source>Copy picture of selected area to clipboard</source>
        <translation>Copier la sélection</translation>
    </message>
    <message>
        <source>Show Spotlight search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Show Finder search window</source>
        <translation>Fenêtre de recherche</translation>
    </message>
    <message>
        <source>Turn zoom on or off</source>
        <translation>(Dés)activer le zoom</translation>
    </message>
    <message>
        <source>Turn image smoothing on or off</source>
        <translation>Lissage des images</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Turn focus following on or off</source>
        <translation>Suivre le focus</translation>
    </message>
    <message>
        <source>Increase contrast</source>
        <translation>Contraste élevé</translation>
    </message>
    <message>
        <source>Decrease contrast</source>
        <translation>Réduire le contraste</translation>
    </message>
    <message>
        <source>Invert colors</source>
        <translation>Inverser les couleurs</translation>
    </message>
    <message>
        <source>Turn VoiceOver on or off</source>
        <translation>Lecteur d’écran</translation>
    </message>
    <message>
        <source>Show Accessibility controls</source>
        <translation>Options d’accessibilité</translation>
    </message>
    <message>
        <source>Show Help Menu</source>
        <translation>Afficher l’aide</translation>
    </message>
    <!-- The name of the Ctrl key in the panel; it and "Alt" must stay below 50 points at 14 -->
    <message>
        <source>keyboard.ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <!-- The panel: the session menu. These must not be shortened: below 150 points at 13 -->
    <message>
        <source>session.lock</source>
        <translation>Verrouiller l’écran</translation>
    </message>
    <message>
        <source>session.log_out</source>
        <translation>Se déconnecter…</translation>
    </message>
    <message>
        <source>session.shut_down</source>
        <translation>Éteindre…</translation>
    </message>
    <message>
        <source>session.overview</source>
        <translation>Vue d’ensemble</translation>
    </message>
    <message>
        <source>session.show_desktop</source>
        <translation>Afficher le bureau</translation>
    </message>
    <message>
        <source>session.home</source>
        <translation>Dossier personnel</translation>
    </message>
    <message>
        <source>session.files</source>
        <translation>Ouvrir les fichiers</translation>
    </message>
    <message>
        <source>session.terminal</source>
        <translation>Ouvrir un terminal</translation>
    </message>
    <message>
        <source>session.settings</source>
        <translation>Paramètres système</translation>
    </message>
    <message>
        <source>session.run</source>
        <translation>Exécuter…</translation>
    </message>
    <message>
        <source>session.minimize</source>
        <translation>Réduire la fenêtre</translation>
    </message>
    <message>
        <source>session.tasks</source>
        <translation>Gestion des tâches</translation>
    </message>
    <!-- The preferences window and the status menu -->
    <message>
        <source>tab.types.settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>tab.types.tools.library</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>tab.types.tutorial</source>
        <translation>Prise en main</translation>
    </message>
    <message>
        <source>tab.types.free_apps</source>
        <translation>Applis gratuites</translation>
    </message>
    <message>
        <source>tab.types.about</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>statusBar.title.setting</source>
        <translation>Paramètres…</translation>
    </message>
    <message>
        <source>statusBar.title.update</source>
        <translation>Rechercher des mises à jour…</translation>
    </message>
    <message>
        <source>statusBar.title.plugin</source>
        <translation>Greffons</translation>
    </message>
    <message>
        <source>statusBar.title.about</source>
        <translation>À propos d’Orlamo</translation>
    </message>
    <message>
        <source>statusBar.title.quit</source>
        <translation>Quitter Orlamo</translation>
    </message>
    <message>
        <source>preference.appearance.auto</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>preference.appearance.light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>preference.appearance.dark</source>
        <translation>Sombre</translation>
    </message>
    <!-- Installers and downloads; %@ and %1$@ stand for texts given at run time -->
    <message>
        <source>create.choose.installer.tips.title</source>
        <translation>Choisir le programme d’installation de %@</translation>
    </message>
    <message>
        <source>create.choose.installer.openPanel.message</source>
        <translation>Choisissez un programme d’installation</translation>
    </message>
    <message>
        <source>create.choose.drive.title</source>
        <translation>Choisir un lecteur</translation>
    </message>
    <message>
        <source>create.choose.disk.tips.title</source>
        <translation>Écrire %1$@ sur le lecteur %2$@</translation>
    </message>
    <message>
        <source>create.installer.media.warning.title</source>
        <translation>Effacer %@ ?</translation>
    </message>
    <message>
        <source>create.installer.media.alert.messages</source>
        <translation>Tout le contenu de %@ sera supprimé. Cette opération est irréversible.</translation>
    </message>
    <message>
        <source>task.create.title.preparing</source>
        <translation>Préparation…</translation>
    </message>
    <message>
        <source>task.create.title.cleaning</source>
        <translation>Effacement du lecteur…</translation>
    </message>
    <message>
        <source>task.create.title.copied</source>
        <translation>Fichiers copiés</translation>
    </message>
    <message>
        <source>create.installer.done</source>
        <translation>%@ est prêt à l’emploi</translation>
    </message>
    <message>
        <source>download.main.tips.title</source>
        <translation>Choisissez ce que vous voulez télécharger</translation>
    </message>
    <message>
        <source>download.done.alert.title</source>
        <translation>Téléchargement terminé</translation>
    </message>
    <message>
        <source>download.done.alert.messages</source>
        <translation>%1$@ a été enregistré dans %2$@</translation>
    </message>
    <message>
        <source>setting.choose.download.installer.path.title</source>
        <translation>Emplacement des programmes d’installation</translation>
    </message>
    <message>
        <source>Tip.title</source>
        <translation>Astuce</translation>
    </message>
    <!-- The preferences window -->
    <message>
        <source>preferences.window.title</source>
        <translation>Paramètres d’Orlamo</translation>
    </message>
    <message>
        <source>preferences.tabs</source>
        <translation>Pages</translation>
    </message>
    <!-- The page of the settings -->
    <message>
        <source>settings.tip</source>
        <translation>Dans n’importe quelle application, appuyez deux fois rapidement sur la touche de déclenchement : ses raccourcis s’affichent au milieu de l’écran.</translation>
    </message>
    <message>
        <source>settings.general</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>settings.login</source>
        <translation>Lancer à l’ouverture de session</translation>
    </message>
    <message>
        <source>settings.login.description</source>
        <translation>Orlamo est prêt dès que votre session est ouverte.</translation>
    </message>
    <message>
        <source>settings.hide_icon</source>
        <translation>Masquer l’icône d’état</translation>
    </message>
    <message>
        <source>settings.hide_icon.description</source>
        <translation>Sans l’icône, lancez Orlamo une seconde fois pour revenir à ces paramètres.</translation>
    </message>
    <message>
        <source>settings.taskbar</source>
        <translation>Afficher les fenêtres dans la barre des tâches</translation>
    </message>
    <message>
        <source>settings.taskbar.description</source>
        <translation>Aussi dans le sélecteur de fenêtres. Valable jusqu’à la fermeture d’Orlamo.</translation>
    </message>
    <message>
        <source>settings.panel</source>
        <translation>Panneau</translation>
    </message>
    <message>
        <source>settings.trigger</source>
        <translation>Touche de déclenchement</translation>
    </message>
    <message>
        <source>settings.trigger.description</source>
        <translation>Sur un clavier de PC, Command est Ctrl, Control est Super et Shift est Maj.</translation>
    </message>
    <message>
        <source>settings.help</source>
        <translation>Fonctionnement de la touche de déclenchement</translation>
    </message>
    <message>
        <source>settings.layout</source>
        <translation>Disposition</translation>
    </message>
    <message>
        <source>settings.layout.columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>settings.blur</source>
        <translation>Arrière-plan flou</translation>
    </message>
    <message>
        <source>settings.blur.description</source>
        <translation>Ce qui se trouve derrière le panneau transparaît en douceur.</translation>
    </message>
    <message>
        <source>settings.session_menu</source>
        <translation>Inclure le menu de session</translation>
    </message>
    <message>
        <source>settings.session_menu.description</source>
        <translation>Ajoute les touches de verrouillage, de déconnexion, etc., si ce bureau en a.</translation>
    </message>
    <message>
        <source>settings.session_menu.unknown_desktop</source>
        <translation>Indisponible : ce menu existe pour GNOME, MATE, Cinnamon, Xfce et KDE Plasma.</translation>
    </message>
    <message>
        <source>settings.session_menu.not_bound</source>
        <translation>Indisponible pour l’instant : ce bureau doit avoir des touches pour verrouiller, se déconnecter et deux autres actions.</translation>
    </message>
    <message>
        <source>settings.session_menu.no_service</source>
        <translation>Indisponible pour l’instant : un service nécessaire de ce bureau n’est pas lancé.</translation>
    </message>
    <message>
        <source>settings.look</source>
        <translation>Couleur et coins</translation>
    </message>
    <message>
        <source>settings.look.description</source>
        <translation>Conservé pour une version ultérieure ; le panneau ne s’en sert pas encore.</translation>
    </message>
    <message>
        <source>settings.color</source>
        <translation>Couleur d’arrière-plan</translation>
    </message>
    <message>
        <source>settings.color.choose</source>
        <translation>Choisir une couleur</translation>
    </message>
    <message>
        <source>settings.radius</source>
        <translation>Rayon des coins</translation>
    </message>
    <message>
        <source>settings.updates</source>
        <translation>Mises à jour</translation>
    </message>
    <message>
        <source>settings.check_updates</source>
        <translation>Rechercher automatiquement les mises à jour</translation>
    </message>
    <message>
        <source>settings.check_updates.description</source>
        <translation>Conservé pour une version ultérieure. Pour l’instant, quel que soit ce choix, Orlamo vérifie lorsqu’il est lancé après plus de cinq jours ; un Orlamo installé par paquet est mis à jour avec son paquet.</translation>
    </message>
    <message>
        <source>settings.permission</source>
        <translation>Autorisation</translation>
    </message>
    <message>
        <source>settings.permission.description</source>
        <translation>Orlamo lit les menus des autres applications par le service d’accessibilité de ce bureau.</translation>
    </message>
    <message>
        <source>settings.permission.help</source>
        <translation>Comment donner l’autorisation</translation>
    </message>
    <!-- The help beside the trigger key -->
    <message>
        <source>popover.title</source>
        <translation>Comment le panneau s’ouvre</translation>
    </message>
    <message>
        <source>popover.open</source>
        <translation>Appuyez deux fois sur la touche de déclenchement en moins d’une demi-seconde, sans tenir d’autre touche de modification.</translation>
    </message>
    <message>
        <source>popover.hold</source>
        <translation>Quand le panneau est ouvert, maintenez Ctrl, Alt, Maj ou Super : ce que ces touches permettent passe au turquoise.</translation>
    </message>
    <message>
        <source>popover.close</source>
        <translation>Un nouveau double appui, Échap ou un clic dans une autre application le ferme.</translation>
    </message>
    <!-- The tutorial -->
    <message>
        <source>tutorial.lead</source>
        <translation>Quatre choses à savoir, et tous les raccourcis sont à portée de main.</translation>
    </message>
    <message>
        <source>tutorial.open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>tutorial.open.description</source>
        <translation>Appuyez deux fois rapidement sur la touche de déclenchement. C’est Ctrl, sauf si vous en avez choisi une autre dans les paramètres. Le panneau affiche les raccourcis de l’application au premier plan et, à côté, ceux du bureau.</translation>
    </message>
    <message>
        <source>tutorial.find</source>
        <translation>Trouver</translation>
    </message>
    <message>
        <source>tutorial.find.description</source>
        <translation>Maintenez Ctrl, Alt, Maj ou Super : les raccourcis qui ont exactement ces touches passent au turquoise.</translation>
    </message>
    <message>
        <source>tutorial.click</source>
        <translation>Cliquer</translation>
    </message>
    <message>
        <source>tutorial.click.description</source>
        <translation>Un clic sur un raccourci l’exécute, comme si vous l’aviez tapé.</translation>
    </message>
    <message>
        <source>tutorial.close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>tutorial.close.description</source>
        <translation>Appuyez de nouveau deux fois sur la touche de déclenchement ou sur Échap, ou cliquez dans une autre application.</translation>
    </message>
    <message>
        <source>tutorial.video</source>
        <translation>Voir la vidéo</translation>
    </message>
    <message>
        <source>tutorial.questions</source>
        <translation>Questions et réponses</translation>
    </message>
    <!-- The applications of the publisher -->
    <message>
        <source>freeapps.lead</source>
        <translation>De petits outils discrets, par les créateurs d’Orlamo.</translation>
    </message>
    <message>
        <source>freeapps.website</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>freeapps.more</source>
        <translation>Autres applications</translation>
    </message>
    <message>
        <source>freeapps.orlamo.desc</source>
        <translation>Tous les raccourcis de l’application au premier plan, en un coup d’œil.</translation>
    </message>
    <message>
        <source>freeapps.tavlumi.desc</source>
        <translation>Se souvient de ce que vous avez copié et vous le rend.</translation>
    </message>
    <message>
        <source>freeapps.brenquo.desc</source>
        <translation>Range les fenêtres côte à côte d’une seule touche.</translation>
    </message>
    <message>
        <source>freeapps.oskelid.desc</source>
        <translation>Une règle pour tout ce qui est à l’écran.</translation>
    </message>
    <message>
        <source>freeapps.pirvanto.desc</source>
        <translation>Renomme de nombreux fichiers d’un coup et montre d’abord le résultat.</translation>
    </message>
    <message>
        <source>freeapps.zelmoru.desc</source>
        <translation>Travail et pauses, montre en main.</translation>
    </message>
    <message>
        <source>freeapps.fenzavo.desc</source>
        <translation>Écrit des phrases entières à partir d’abréviations.</translation>
    </message>
    <message>
        <source>freeapps.murtiglo.desc</source>
        <translation>Montre ce qui remplit votre disque.</translation>
    </message>
    <message>
        <source>freeapps.yarpeno.desc</source>
        <translation>Des notes en texte brut, toujours sous la main.</translation>
    </message>
    <!-- The page about the program -->
    <message>
        <source>about.lead</source>
        <translation>Tous les raccourcis en un coup d’œil.</translation>
    </message>
    <message>
        <source>about.support</source>
        <translation>Assistance</translation>
    </message>
    <message>
        <source>about.support.description</source>
        <translation>Un problème, une idée ? Dites-le-nous.</translation>
    </message>
    <message>
        <source>about.support.open</source>
        <translation>Obtenir de l’aide</translation>
    </message>
    <message>
        <source>about.chat</source>
        <translation>Groupe de discussion</translation>
    </message>
    <message>
        <source>about.chat.description</source>
        <translation>Échangez avec d’autres personnes qui utilisent Orlamo.</translation>
    </message>
    <message>
        <source>about.chat.open</source>
        <translation>Rejoindre le groupe</translation>
    </message>
    <!-- The permission window -->
    <message>
        <source>permission.window.title</source>
        <translation>Orlamo a besoin d’une autorisation</translation>
    </message>
    <message>
        <source>permission.title</source>
        <translation>Orlamo peut-il lire les menus ?</translation>
    </message>
    <message>
        <source>permission.reason</source>
        <translation>Pour énumérer les raccourcis d’une application, Orlamo lit ses menus par le service d’accessibilité de ce bureau, et celui-ci est désactivé. Ce qu’il lit reste sur cet ordinateur.</translation>
    </message>
    <message>
        <source>accessibility.permission.gained</source>
        <translation>L’accessibilité est activée</translation>
    </message>
    <message>
        <source>accessibility.permission.not.obtained</source>
        <translation>L’accessibilité est désactivée</translation>
    </message>
    <message>
        <source>permission.screen_recording</source>
        <translation>Enregistrement de l’écran</translation>
    </message>
    <message>
        <source>permission.full_disk_access</source>
        <translation>Accès complet au disque</translation>
    </message>
    <message>
        <source>permission.allow</source>
        <translation>Activer</translation>
    </message>
    <message>
        <source>permission.help</source>
        <translation>Qu’est-ce que cela signifie ?</translation>
    </message>
    <message>
        <source>permission.later</source>
        <translation>Plus tard</translation>
    </message>
    <!-- The window that looks for updates -->
    <message>
        <source>update.window.title</source>
        <translation>Mise à jour du logiciel</translation>
    </message>
    <message>
        <source>update.checking.title</source>
        <translation>Recherche de mises à jour…</translation>
    </message>
    <message>
        <source>update.upToDate.title</source>
        <translation>Orlamo est à jour</translation>
    </message>
    <message>
        <source>update.upToDate.message</source>
        <translation>Vous avez la version %@. Il n’en existe pas de plus récente.</translation>
    </message>
    <message>
        <source>update.newVersion.title</source>
        <translation>Orlamo %@ est disponible</translation>
    </message>
    <message>
        <source>update.newVersion.message</source>
        <translation>Vous avez la version %@. La page de la nouvelle version indique comment l’obtenir.</translation>
    </message>
    <message>
        <source>update.newVersion.noPage</source>
        <translation>Vous avez la version %@. Aucune page de la nouvelle version n’est connue ; voyez là où vous avez obtenu Orlamo.</translation>
    </message>
    <message>
        <source>update.newVersion.pageFailed</source>
        <translation>Rien sur cet ordinateur n’a pu ouvrir %@</translation>
    </message>
    <message>
        <source>update.notes</source>
        <translation>Nouveautés</translation>
    </message>
    <message>
        <source>update.package.title</source>
        <translation>Les mises à jour viennent avec le paquet</translation>
    </message>
    <message>
        <source>update.package.message</source>
        <translation>Cette copie d’Orlamo a été installée par un paquet et se met à jour avec votre système.</translation>
    </message>
    <message>
        <source>update.failed.title</source>
        <translation>Échec de la recherche de mises à jour</translation>
    </message>
    <message>
        <source>update.failed.address</source>
        <translation>L’adresse des mises à jour n’est pas sécurisée (https) ; elle n’a donc pas été utilisée.</translation>
    </message>
    <message>
        <source>update.failed.insecureRedirect</source>
        <translation>Le serveur de mises à jour a renvoyé vers une adresse non sécurisée. Rien n’y a été téléchargé.</translation>
    </message>
    <message>
        <source>update.failed.tooManyRedirects</source>
        <translation>Le serveur de mises à jour renvoie sans fin d’une adresse à l’autre.</translation>
    </message>
    <message>
        <source>update.failed.unreachable</source>
        <translation>Le serveur de mises à jour est injoignable, ou la connexion a été interrompue. Vérifiez votre connexion et réessayez.</translation>
    </message>
    <message>
        <source>update.failed.untrusted</source>
        <translation>Le serveur de mises à jour n’a pas pu prouver son identité. Son certificat a peut-être expiré ; la date de cet ordinateur est peut-être fausse.</translation>
    </message>
    <message>
        <source>update.failed.timedOut</source>
        <translation>Le serveur de mises à jour n’a pas répondu à temps. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>update.failed.refused</source>
        <translation>Le serveur de mises à jour n’a pas de liste de versions à son adresse. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>update.failed.tooLarge</source>
        <translation>Le serveur de mises à jour a envoyé plus que ne peut contenir une liste de versions. Rien n’a été lu.</translation>
    </message>
    <message>
        <source>update.failed.unreadable</source>
        <translation>Ce que le serveur de mises à jour a envoyé n’est pas une liste de versions.</translation>
    </message>
    <message>
        <source>update.button.openPage</source>
        <translation>Ouvrir la page</translation>
    </message>
    <message>
        <source>update.button.later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>update.button.close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>update.button.cancel</source>
        <translation>Annuler</translation>
    </message>
    <!-- The second launch -->
    <message>
        <source>instance.noAnswer.title</source>
        <translation>Orlamo est lancé, mais ne répond pas</translation>
    </message>
    <message>
        <source>instance.noAnswer.message</source>
        <translation>Patientez un instant et réessayez. Si cela ne suffit pas, quittez Orlamo, ou arrêtez-le dans le moniteur système de ce bureau, puis relancez-le.</translation>
    </message>
</context>
</TS>
