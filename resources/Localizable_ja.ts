<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!--
  The texts that the program asks for by key, in Japanese: です and ます, punctuation of full width, a space between
  Latin and Japanese letters. A cell of the panel shortens what is wider than 150 points at 13; a heading with a slash
  is shown by its second part.
  Words: shortcut ショートカット, panel パネル, trigger key 呼び出しキー, overview 概要, workspace ワークスペース,
  desktop デスクトップ, accessibility アクセシビリティ, screen reader スクリーンリーダー, session セッション,
  status icon ステータスアイコン, update アップデート, permission 許可.
-->
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- The panel: headings -->
    <message>
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>Launchpad &amp; Dock</source>
        <translation>アプリとドック</translation>
    </message>
    <message>
        <source>Mission Contrl</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>Mission Contrl/Mission Contrl</source>
        <translation>概要/ワークスペース</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>キーボード</translation>
    </message>
    <message>
        <source>Input Sources</source>
        <translation>入力ソース</translation>
    </message>
    <message>
        <source>Screen Shots</source>
        <translation>スクリーンショット</translation>
    </message>
    <message>
        <source>Spotlight</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>アクセシビリティ</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>ズーム</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>コントラスト</translation>
    </message>
    <message>
        <source>App Shortcuts</source>
        <translation>アプリ</translation>
    </message>
    <message>
        <source>All Applications</source>
        <translation>すべてのアプリ</translation>
    </message>
    <!-- The panel: cells -->
    <message>
        <source>Turn Dock Hiding On/Off</source>
        <translation>ドックの自動非表示</translation>
    </message>
    <message>
        <source>Show Launchpad</source>
        <translation>アプリを表示</translation>
    </message>
    <message>
        <source>Show Notification Center</source>
        <translation>通知を表示</translation>
    </message>
    <message>
        <source>Turn Do Not Disturb On/Off</source>
        <translation>サイレントモード</translation>
    </message>
    <message>
        <source>Application Windows</source>
        <translation>アプリのウィンドウ</translation>
    </message>
    <message>
        <source>Show Desktop</source>
        <translation>デスクトップを表示</translation>
    </message>
    <message>
        <source>Show Dashboard</source>
        <translation>ウィジェットを表示</translation>
    </message>
    <message>
        <source>Move left a space</source>
        <translation>左のワークスペース</translation>
    </message>
    <message>
        <source>Move right a space</source>
        <translation>右のワークスペース</translation>
    </message>
    <message>
        <source>Switch to Desktop 1</source>
        <translation>ワークスペース 1 へ</translation>
    </message>
    <message>
        <source>Switch to Desktop 2</source>
        <translation>ワークスペース 2 へ</translation>
    </message>
    <message>
        <source>Switch to Desktop 3</source>
        <translation>ワークスペース 3 へ</translation>
    </message>
    <message>
        <source>Switch to Desktop 4</source>
        <translation>ワークスペース 4 へ</translation>
    </message>
    <message>
        <source>Change the way Tab moves focus</source>
        <translation>Tab のフォーカス変更</translation>
    </message>
    <message>
        <source>Turn keyboard access on or off</source>
        <translation>キーボード操作</translation>
    </message>
    <message>
        <source>Move focus to the menu bar</source>
        <translation>メニューバーへ移動</translation>
    </message>
    <message>
        <source>Move focus to the Dock</source>
        <translation>ドックかパネルへ移動</translation>
    </message>
    <message>
        <source>Move focus to active or next window</source>
        <translation>ウィンドウの切り替え</translation>
    </message>
    <message>
        <source>Move focus to window toolbar</source>
        <translation>ツールバーへ移動</translation>
    </message>
    <message>
        <source>Move focus to floating window</source>
        <translation>浮動ウィンドウへ移動</translation>
    </message>
    <message>
        <source>Move focus to next window</source>
        <translation>アプリの次のウィンドウ</translation>
    </message>
    <message>
        <source>Move focus to the window drawer</source>
        <translation>サイドバーへ移動</translation>
    </message>
    <message>
        <source>Move focus to the status menus</source>
        <translation>システムメニューを開く</translation>
    </message>
    <message>
        <source>Show/Hide Trackpad Handwriting</source>
        <translation>手書き入力の切り替え</translation>
    </message>
    <message>
        <source>Select the previous input source</source>
        <translation>前の入力ソース</translation>
    </message>
    <message>
        <source>Select next source in the Input Menu</source>
        <translation>次の入力ソース</translation>
    </message>
    <message>
        <source>Save picture of screen as file</source>
        <translation>画面を保存</translation>
    </message>
    <message>
        <source>Copy picture of screen to the clipboard</source>
        <translation>画面をコピー</translation>
    </message>
    <message>
        <source>Save picture of selected area as file</source>
        <translation>選択範囲を保存</translation>
    </message>
    <message>
        <source>Copy picture of selected area to clipboard</source>
        <translation>選択範囲をコピー</translation>
    </message>
    <message>
        <source>Show Spotlight search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Show Finder search window</source>
        <translation>検索ウィンドウを表示</translation>
    </message>
    <message>
        <source>Turn zoom on or off</source>
        <translation>ズームの切り替え</translation>
    </message>
    <message>
        <source>Turn image smoothing on or off</source>
        <translation>画像のスムージング</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Turn focus following on or off</source>
        <translation>フォーカスの追従</translation>
    </message>
    <message>
        <source>Increase contrast</source>
        <translation>ハイコントラスト</translation>
    </message>
    <message>
        <source>Decrease contrast</source>
        <translation>コントラストを下げる</translation>
    </message>
    <message>
        <source>Invert colors</source>
        <translation>色を反転</translation>
    </message>
    <message>
        <source>Turn VoiceOver on or off</source>
        <translation>スクリーンリーダー</translation>
    </message>
    <message>
        <source>Show Accessibility controls</source>
        <translation>アクセシビリティ設定</translation>
    </message>
    <message>
        <source>Show Help Menu</source>
        <translation>ヘルプを表示</translation>
    </message>
    <!-- The name of the Ctrl key in the panel; it and "Alt" must stay below 50 points at 14 -->
    <message>
        <source>keyboard.ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <!-- The panel: the session menu. These must not be shortened: below 150 points at 13 -->
    <message>
        <source>session.lock</source>
        <translation>画面をロック</translation>
    </message>
    <message>
        <source>session.log_out</source>
        <translation>ログアウト…</translation>
    </message>
    <message>
        <source>session.shut_down</source>
        <translation>電源オフ…</translation>
    </message>
    <message>
        <source>session.overview</source>
        <translation>概要を表示</translation>
    </message>
    <message>
        <source>session.show_desktop</source>
        <translation>デスクトップを表示</translation>
    </message>
    <message>
        <source>session.home</source>
        <translation>ホームフォルダーを開く</translation>
    </message>
    <message>
        <source>session.files</source>
        <translation>ファイルマネージャー</translation>
    </message>
    <message>
        <source>session.terminal</source>
        <translation>端末を開く</translation>
    </message>
    <message>
        <source>session.settings</source>
        <translation>システム設定を開く</translation>
    </message>
    <message>
        <source>session.run</source>
        <translation>コマンドの実行…</translation>
    </message>
    <message>
        <source>session.minimize</source>
        <translation>ウィンドウを最小化</translation>
    </message>
    <message>
        <source>session.tasks</source>
        <translation>タスクマネージャー</translation>
    </message>
    <!-- The preferences window and the status menu -->
    <message>
        <source>tab.types.settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>tab.types.tools.library</source>
        <translation>ツールライブラリ</translation>
    </message>
    <message>
        <source>tab.types.tutorial</source>
        <translation>使い方</translation>
    </message>
    <message>
        <source>tab.types.free_apps</source>
        <translation>無料アプリ</translation>
    </message>
    <message>
        <source>tab.types.about</source>
        <translation>Orlamo について</translation>
    </message>
    <message>
        <source>statusBar.title.setting</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>statusBar.title.update</source>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>statusBar.title.plugin</source>
        <translation>プラグイン</translation>
    </message>
    <message>
        <source>statusBar.title.about</source>
        <translation>Orlamo について</translation>
    </message>
    <message>
        <source>statusBar.title.quit</source>
        <translation>Orlamo を終了</translation>
    </message>
    <message>
        <source>preference.appearance.auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>preference.appearance.light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>preference.appearance.dark</source>
        <translation>ダーク</translation>
    </message>
    <!-- Installers and downloads; %@ and %1$@ stand for texts given at run time -->
    <message>
        <source>create.choose.installer.tips.title</source>
        <translation>%@ のインストーラーを選択</translation>
    </message>
    <message>
        <source>create.choose.installer.openPanel.message</source>
        <translation>インストーラーを選択してください</translation>
    </message>
    <message>
        <source>create.choose.drive.title</source>
        <translation>ドライブを選択</translation>
    </message>
    <message>
        <source>create.choose.disk.tips.title</source>
        <translation>%1$@ をドライブ %2$@ に書き込む</translation>
    </message>
    <message>
        <source>create.installer.media.warning.title</source>
        <translation>%@ を消去しますか？</translation>
    </message>
    <message>
        <source>create.installer.media.alert.messages</source>
        <translation>%@ の内容はすべて削除されます。この操作は取り消せません。</translation>
    </message>
    <message>
        <source>task.create.title.preparing</source>
        <translation>準備中…</translation>
    </message>
    <message>
        <source>task.create.title.cleaning</source>
        <translation>ドライブを消去中…</translation>
    </message>
    <message>
        <source>task.create.title.copied</source>
        <translation>ファイルをコピーしました</translation>
    </message>
    <message>
        <source>create.installer.done</source>
        <translation>%@ の準備ができました</translation>
    </message>
    <message>
        <source>download.main.tips.title</source>
        <translation>ダウンロードするものを選択</translation>
    </message>
    <message>
        <source>download.done.alert.title</source>
        <translation>ダウンロードが完了しました</translation>
    </message>
    <message>
        <source>download.done.alert.messages</source>
        <translation>%1$@ を %2$@ に保存しました</translation>
    </message>
    <message>
        <source>setting.choose.download.installer.path.title</source>
        <translation>インストーラーの保存場所</translation>
    </message>
    <message>
        <source>Tip.title</source>
        <translation>ヒント</translation>
    </message>
    <!-- The preferences window -->
    <message>
        <source>preferences.window.title</source>
        <translation>Orlamo の設定</translation>
    </message>
    <message>
        <source>preferences.tabs</source>
        <translation>ページ</translation>
    </message>
    <!-- The page of the settings -->
    <message>
        <source>settings.tip</source>
        <translation>どのアプリでも、呼び出しキーをすばやく 2 回押すと、画面の中央にショートカットが出ます。</translation>
    </message>
    <message>
        <source>settings.general</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>settings.login</source>
        <translation>ログイン時に起動</translation>
    </message>
    <message>
        <source>settings.login.description</source>
        <translation>ログインするとすぐに Orlamo を使えます。</translation>
    </message>
    <message>
        <source>settings.hide_icon</source>
        <translation>ステータスアイコンを隠す</translation>
    </message>
    <message>
        <source>settings.hide_icon.description</source>
        <translation>アイコンがないときは、Orlamo をもう一度起動するとこの設定に戻れます。</translation>
    </message>
    <message>
        <source>settings.taskbar</source>
        <translation>ウィンドウをタスクバーに表示</translation>
    </message>
    <message>
        <source>settings.taskbar.description</source>
        <translation>ウィンドウの切り替えにも表示されます。Orlamo を終了するまで有効です。</translation>
    </message>
    <message>
        <source>settings.panel</source>
        <translation>パネル</translation>
    </message>
    <message>
        <source>settings.trigger</source>
        <translation>呼び出しキー</translation>
    </message>
    <message>
        <source>settings.trigger.description</source>
        <translation>PC のキーボードでは、Command は Ctrl、Control は Super、Shift は Shift です。</translation>
    </message>
    <message>
        <source>settings.help</source>
        <translation>呼び出しキーの使い方</translation>
    </message>
    <message>
        <source>settings.layout</source>
        <translation>レイアウト</translation>
    </message>
    <message>
        <source>settings.layout.columns</source>
        <translation>段組み</translation>
    </message>
    <message>
        <source>settings.blur</source>
        <translation>背景をぼかす</translation>
    </message>
    <message>
        <source>settings.blur.description</source>
        <translation>パネルの後ろにあるものが、やわらかく透けて見えます。</translation>
    </message>
    <message>
        <source>settings.session_menu</source>
        <translation>セッションメニューを含める</translation>
    </message>
    <message>
        <source>settings.session_menu.description</source>
        <translation>このデスクトップにあれば、画面のロックやログアウトなどのキーも表示します。</translation>
    </message>
    <message>
        <source>settings.session_menu.unknown_desktop</source>
        <translation>利用できません。対応しているのは GNOME、MATE、Cinnamon、Xfce、KDE Plasma です。</translation>
    </message>
    <message>
        <source>settings.session_menu.not_bound</source>
        <translation>現在は利用できません。ロックとログアウト、さらに 2 つの操作にキーの割り当てが必要です。</translation>
    </message>
    <message>
        <source>settings.session_menu.no_service</source>
        <translation>現在は利用できません。必要なデスクトップのサービスが動作していません。</translation>
    </message>
    <message>
        <source>settings.look</source>
        <translation>色と角</translation>
    </message>
    <message>
        <source>settings.look.description</source>
        <translation>今後のバージョンのための設定です。パネルではまだ使われません。</translation>
    </message>
    <message>
        <source>settings.color</source>
        <translation>背景色</translation>
    </message>
    <message>
        <source>settings.color.choose</source>
        <translation>色を選択</translation>
    </message>
    <message>
        <source>settings.radius</source>
        <translation>角の半径</translation>
    </message>
    <message>
        <source>settings.updates</source>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>settings.check_updates</source>
        <translation>アップデートを自動的に確認</translation>
    </message>
    <message>
        <source>settings.check_updates.description</source>
        <translation>今後のバージョンのための設定です。現在は、ここでの選択に関係なく、5 日を超えてから起動すると確認します。パッケージ版の Orlamo は、パッケージとともにアップデートされます。</translation>
    </message>
    <message>
        <source>settings.permission</source>
        <translation>許可</translation>
    </message>
    <message>
        <source>settings.permission.description</source>
        <translation>Orlamo は、このデスクトップのアクセシビリティサービスを通じて、ほかのアプリのメニューを読み取ります。</translation>
    </message>
    <message>
        <source>settings.permission.help</source>
        <translation>許可する方法</translation>
    </message>
    <!-- The help beside the trigger key -->
    <message>
        <source>popover.title</source>
        <translation>パネルの開き方</translation>
    </message>
    <message>
        <source>popover.open</source>
        <translation>ほかの修飾キーを押さずに、呼び出しキーを 0.5 秒以内に 2 回押します。</translation>
    </message>
    <message>
        <source>popover.hold</source>
        <translation>パネルが開いている間に修飾キーを押し続けると、そのキーで使えるものが青緑色になります。</translation>
    </message>
    <message>
        <source>popover.close</source>
        <translation>もう一度 2 回押すか、Esc を押すか、ほかのアプリをクリックすると閉じます。</translation>
    </message>
    <!-- The tutorial -->
    <message>
        <source>tutorial.lead</source>
        <translation>4 つのことを覚えれば、すべてのショートカットがすぐ手元に。</translation>
    </message>
    <message>
        <source>tutorial.open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>tutorial.open.description</source>
        <translation>呼び出しキーをすばやく 2 回押します。設定で別のキーを選んでいなければ、Ctrl です。パネルには、前面にあるアプリのショートカットと、その横にデスクトップのショートカットが表示されます。</translation>
    </message>
    <message>
        <source>tutorial.find</source>
        <translation>探す</translation>
    </message>
    <message>
        <source>tutorial.find.description</source>
        <translation>Ctrl、Alt、Shift、Super を押している間、ちょうどその修飾キーを使うショートカットが青緑色になります。</translation>
    </message>
    <message>
        <source>tutorial.click</source>
        <translation>クリック</translation>
    </message>
    <message>
        <source>tutorial.click.description</source>
        <translation>ショートカットをクリックすると、キーを押したときと同じように実行されます。</translation>
    </message>
    <message>
        <source>tutorial.close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>tutorial.close.description</source>
        <translation>もう一度呼び出しキーを 2 回押すか、Esc を押すか、ほかのアプリをクリックします。</translation>
    </message>
    <message>
        <source>tutorial.video</source>
        <translation>動画を見る</translation>
    </message>
    <message>
        <source>tutorial.questions</source>
        <translation>よくある質問</translation>
    </message>
    <!-- The applications of the publisher -->
    <message>
        <source>freeapps.lead</source>
        <translation>Orlamo の開発元がつくる、小さくて控えめなツールです。</translation>
    </message>
    <message>
        <source>freeapps.website</source>
        <translation>ウェブサイト</translation>
    </message>
    <message>
        <source>freeapps.more</source>
        <translation>ほかのアプリ</translation>
    </message>
    <message>
        <source>freeapps.orlamo.desc</source>
        <translation>前面にあるアプリのショートカットが一目でわかります。</translation>
    </message>
    <message>
        <source>freeapps.tavlumi.desc</source>
        <translation>コピーしたものを覚えておき、あとで取り出せます。</translation>
    </message>
    <message>
        <source>freeapps.brenquo.desc</source>
        <translation>キー 1 つでウィンドウを並べます。</translation>
    </message>
    <message>
        <source>freeapps.oskelid.desc</source>
        <translation>画面上のあらゆるものを測る定規です。</translation>
    </message>
    <message>
        <source>freeapps.pirvanto.desc</source>
        <translation>結果を確かめてから、多数のファイル名をまとめて変更します。</translation>
    </message>
    <message>
        <source>freeapps.zelmoru.desc</source>
        <translation>仕事と休憩を時間で区切ります。</translation>
    </message>
    <message>
        <source>freeapps.fenzavo.desc</source>
        <translation>短い略語から文章全体を入力します。</translation>
    </message>
    <message>
        <source>freeapps.murtiglo.desc</source>
        <translation>ディスクを占めているものを表示します。</translation>
    </message>
    <message>
        <source>freeapps.yarpeno.desc</source>
        <translation>プレーンテキストのメモを、いつでも手元に。</translation>
    </message>
    <!-- The page about the program -->
    <message>
        <source>about.lead</source>
        <translation>すべてのショートカットを一目で。</translation>
    </message>
    <message>
        <source>about.support</source>
        <translation>サポート</translation>
    </message>
    <message>
        <source>about.support.description</source>
        <translation>うまく動かないときや、アイデアがあるときは、お知らせください。</translation>
    </message>
    <message>
        <source>about.support.open</source>
        <translation>サポートを受ける</translation>
    </message>
    <message>
        <source>about.chat</source>
        <translation>チャットグループ</translation>
    </message>
    <message>
        <source>about.chat.description</source>
        <translation>Orlamo を使っているほかの人と話せます。</translation>
    </message>
    <message>
        <source>about.chat.open</source>
        <translation>チャットに参加</translation>
    </message>
    <!-- The permission window -->
    <message>
        <source>permission.window.title</source>
        <translation>Orlamo には許可が必要です</translation>
    </message>
    <message>
        <source>permission.title</source>
        <translation>メニューの読み取りを許可しますか？</translation>
    </message>
    <message>
        <source>permission.reason</source>
        <translation>アプリのショートカットを一覧にするため、Orlamo はこのデスクトップのアクセシビリティサービスを通じてメニューを読み取りますが、このサービスは現在オフになっています。読み取った内容は外部に送信されません。</translation>
    </message>
    <message>
        <source>accessibility.permission.gained</source>
        <translation>アクセシビリティはオンです</translation>
    </message>
    <message>
        <source>accessibility.permission.not.obtained</source>
        <translation>アクセシビリティはオフです</translation>
    </message>
    <message>
        <source>permission.screen_recording</source>
        <translation>画面収録</translation>
    </message>
    <message>
        <source>permission.full_disk_access</source>
        <translation>ディスク全体へのアクセス</translation>
    </message>
    <message>
        <source>permission.allow</source>
        <translation>オンにする</translation>
    </message>
    <message>
        <source>permission.help</source>
        <translation>これは何ですか？</translation>
    </message>
    <message>
        <source>permission.later</source>
        <translation>後で</translation>
    </message>
    <!-- The window that looks for updates -->
    <message>
        <source>update.window.title</source>
        <translation>ソフトウェアのアップデート</translation>
    </message>
    <message>
        <source>update.checking.title</source>
        <translation>アップデートを確認しています…</translation>
    </message>
    <message>
        <source>update.upToDate.title</source>
        <translation>Orlamo は最新です</translation>
    </message>
    <message>
        <source>update.upToDate.message</source>
        <translation>お使いのバージョンは %@ です。これより新しいものはありません。</translation>
    </message>
    <message>
        <source>update.newVersion.title</source>
        <translation>Orlamo %@ を入手できます</translation>
    </message>
    <message>
        <source>update.newVersion.message</source>
        <translation>お使いのバージョンは %@ です。入手方法は新しいバージョンのページをご覧ください。</translation>
    </message>
    <message>
        <source>update.newVersion.noPage</source>
        <translation>お使いのバージョンは %@ です。新しいバージョンのページは不明です。Orlamo の入手元をご確認ください。</translation>
    </message>
    <message>
        <source>update.newVersion.pageFailed</source>
        <translation>このコンピューターでは %@ を開けませんでした</translation>
    </message>
    <message>
        <source>update.notes</source>
        <translation>新機能</translation>
    </message>
    <message>
        <source>update.package.title</source>
        <translation>パッケージで更新されます</translation>
    </message>
    <message>
        <source>update.package.message</source>
        <translation>この Orlamo はパッケージとしてインストールされており、システムとともにアップデートされます。</translation>
    </message>
    <message>
        <source>update.failed.title</source>
        <translation>アップデートを確認できませんでした</translation>
    </message>
    <message>
        <source>update.failed.address</source>
        <translation>アップデートのアドレスが安全なもの（https）ではないため、使用しませんでした。</translation>
    </message>
    <message>
        <source>update.failed.insecureRedirect</source>
        <translation>アップデートサーバーが安全でないアドレスに転送しました。そこからは何も取得していません。</translation>
    </message>
    <message>
        <source>update.failed.tooManyRedirects</source>
        <translation>アップデートサーバーの転送が繰り返され、終わりませんでした。</translation>
    </message>
    <message>
        <source>update.failed.unreachable</source>
        <translation>アップデートサーバーに接続できないか、接続が切れました。接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>update.failed.untrusted</source>
        <translation>アップデートサーバーの身元を確認できませんでした。証明書の期限が切れているか、このコンピューターの日付が正しくない可能性があります。</translation>
    </message>
    <message>
        <source>update.failed.timedOut</source>
        <translation>アップデートサーバーが時間内に応答しませんでした。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>update.failed.refused</source>
        <translation>アップデートサーバーのアドレスにバージョンの一覧がありません。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>update.failed.tooLarge</source>
        <translation>アップデートサーバーから、バージョンの一覧としては大きすぎるデータが届いたため、読み取りませんでした。</translation>
    </message>
    <message>
        <source>update.failed.unreadable</source>
        <translation>アップデートサーバーから届いたデータは、バージョンの一覧ではありません。</translation>
    </message>
    <message>
        <source>update.button.openPage</source>
        <translation>ページを開く</translation>
    </message>
    <message>
        <source>update.button.later</source>
        <translation>後で</translation>
    </message>
    <message>
        <source>update.button.close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>update.button.cancel</source>
        <translation>キャンセル</translation>
    </message>
    <!-- The second launch -->
    <message>
        <source>instance.noAnswer.title</source>
        <translation>Orlamo は動作中ですが、応答しません</translation>
    </message>
    <message>
        <source>instance.noAnswer.message</source>
        <translation>しばらく待ってから、もう一度お試しください。それでも応答しないときは、Orlamo を終了するか、このデスクトップのシステムモニターで終了させて、起動し直してください。</translation>
    </message>
</context>
</TS>
