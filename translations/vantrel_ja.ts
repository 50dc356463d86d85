<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>AboutSettingsView</name>
    <message>
        <source>Official Website</source>
        <translation>公式サイト</translation>
    </message>
    <message>
        <source>Visit the official Vantrel website</source>
        <translation>Vantrel の公式サイトを開く</translation>
    </message>
    <message>
        <source>Watch Vantrel videos on YouTube</source>
        <translation>YouTube で Vantrel の動画を見る</translation>
    </message>
</context>
<context>
    <name>AddPresetTile</name>
    <message>
        <source>New Preset</source>
        <translation>新規スタイル</translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>Software Update</source>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>アップデートを確認中…</translation>
    </message>
    <message>
        <source>Asking %1</source>
        <translation>%1 に問い合わせ中</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>最新の状態です</translation>
    </message>
    <message>
        <source>Vantrel %1 is the newest version available.</source>
        <translation>Vantrel %1 が最新のバージョンです。</translation>
    </message>
    <message>
        <source>A new version of Vantrel is available!</source>
        <translation>Vantrel の新しいバージョンがあります</translation>
    </message>
    <message>
        <source>Vantrel %1 is available; you have %2.</source>
        <translation>Vantrel %1 が利用できます（現在は %2）。</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>後で</translation>
    </message>
    <message>
        <source>Vantrel could not check for updates.</source>
        <translation>アップデートを確認できませんでした。</translation>
    </message>
</context>
<context>
    <name>AppearanceSettingsView</name>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>間隔</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>角の半径</translation>
    </message>
    <message>
        <source>Border Width</source>
        <translation>枠線の幅</translation>
    </message>
    <message>
        <source>Shadow Radius</source>
        <translation>影の半径</translation>
    </message>
    <message>
        <source>Glow Radius</source>
        <translation>光彩の半径</translation>
    </message>
    <message>
        <source>Modern</source>
        <translation>モダン</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>クラシック</translation>
    </message>
    <message>
        <source>Minimal</source>
        <translation>ミニマル</translation>
    </message>
    <message>
        <source>Gaming</source>
        <translation>ゲーミング</translation>
    </message>
    <message>
        <source>Neon</source>
        <translation>ネオン</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Fade In</source>
        <translation>フェードイン</translation>
    </message>
    <message>
        <source>Scale In</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Slide In</source>
        <translation>スライドイン</translation>
    </message>
    <message>
        <source>Bounce</source>
        <translation>バウンス</translation>
    </message>
    <message>
        <source>Style Presets</source>
        <translation>スタイル</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>アニメーション</translation>
    </message>
    <message>
        <source>How keys appear on screen</source>
        <translation>キーの表示方法</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>フォント</translation>
    </message>
    <message>
        <source>Choose the font family</source>
        <translation>フォントを選択</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Text Color</source>
        <translation>文字の色</translation>
    </message>
    <message>
        <source>Color of the key labels</source>
        <translation>キーの文字の色</translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation>背景色</translation>
    </message>
    <message>
        <source>Color of the key background</source>
        <translation>キーの背景の色</translation>
    </message>
    <message>
        <source>Border Color</source>
        <translation>枠線の色</translation>
    </message>
    <message>
        <source>Color of the key border</source>
        <translation>キーの枠線の色</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>効果</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>影</translation>
    </message>
    <message>
        <source>Add drop shadow to keys</source>
        <translation>キーに影を付ける</translation>
    </message>
    <message>
        <source>Shadow Color</source>
        <translation>影の色</translation>
    </message>
    <message>
        <source>Color of the drop shadow</source>
        <translation>影の色</translation>
    </message>
    <message>
        <source>Glow Effect</source>
        <translation>光彩効果</translation>
    </message>
    <message>
        <source>Add glow effect to keys</source>
        <translation>キーを光らせる</translation>
    </message>
    <message>
        <source>Glow Color</source>
        <translation>光彩の色</translation>
    </message>
    <message>
        <source>Color of the glow effect</source>
        <translation>光彩の色</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Reset to default appearance settings</source>
        <translation>外観を初期設定に戻す</translation>
    </message>
</context>
<context>
    <name>AtSpiFocusWatcher</name>
    <message>
        <source>The accessibility bus (AT-SPI) is not running, so password fields cannot be recognised.</source>
        <translation>アクセシビリティバス（AT-SPI）が動作していないため、パスワード欄を認識できません。</translation>
    </message>
    <message>
        <source>There is no session bus to find the accessibility bus on.</source>
        <translation>アクセシビリティバスを探すためのセッションバスがありません。</translation>
    </message>
    <message>
        <source>Nothing is shown while a password field has the focus.</source>
        <translation>パスワード欄にフォーカスがある間は何も表示しません。</translation>
    </message>
</context>
<context>
    <name>DisplaySettingsView</name>
    <message>
        <source>Top Left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top Center</source>
        <translation>上中央</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom Center</source>
        <translation>下中央</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>Connected Displays</source>
        <translation>接続中のディスプレイ</translation>
    </message>
    <message>
        <source>No displays detected</source>
        <translation>ディスプレイが見つかりません</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>再検出</translation>
    </message>
    <message>
        <source>Refresh the list of connected displays</source>
        <translation>接続中のディスプレイの一覧を更新</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Reset display settings to defaults</source>
        <translation>ディスプレイ設定を初期設定に戻す</translation>
    </message>
    <message>
        <source>Keystrokes will be shown on this display</source>
        <translation>このディスプレイにキーを表示します</translation>
    </message>
    <message>
        <source>Keystrokes will be not shown on this display</source>
        <translation>このディスプレイにはキーを表示しません</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Edit custom position</source>
        <translation>カスタム位置を編集</translation>
    </message>
</context>
<context>
    <name>EvdevCaptureBackend</name>
    <message>
        <source>Vantrel finds no input devices: the folder %1 does not exist.</source>
        <translation>入力デバイスが見つかりません：フォルダ %1 が存在しません。</translation>
    </message>
    <message>
        <source>You are in the input group, but this session began before you joined it: log out and back in.</source>
        <translation>input グループに参加済みですが、このセッションは参加前に始まりました。ログアウトして再ログインしてください。</translation>
    </message>
    <message>
        <source>Vantrel cannot read the input devices in %1 (permission denied).</source>
        <translation>%1 の入力デバイスを読み取れません（アクセス拒否）。</translation>
    </message>
    <message>
        <source>Vantrel finds no keyboard in %1.</source>
        <translation>%1 にキーボードが見つかりません。</translation>
    </message>
    <message>
        <source>Choose Allow and give an administrator&apos;s password: Vantrel&apos;s input helper then reads the keyboard until Vantrel quits. If no password dialog appears, start your desktop&apos;s authentication agent and choose Allow again.</source>
        <translation>「許可」を選んで管理者のパスワードを入力してください。Vantrel の入力ヘルパーが Vantrel の終了までキーボードを読み取ります。パスワードの画面が出ない場合は、デスクトップの認証エージェントを起動してからもう一度「許可」を選んでください。</translation>
    </message>
    <message>
        <source>Or add yourself to the input group: sudo usermod -aG input $USER. Every program you run can then read every key you type.</source>
        <translation>または input グループに参加してください：sudo usermod -aG input $USER。その場合、実行するすべてのプログラムが入力したすべてのキーを読み取れるようになります。</translation>
    </message>
    <message>
        <source>Log out and back in, so that the new group applies, then choose Check Again.</source>
        <translation>グループを有効にするためにログアウトして再ログインし、「再確認」を選んでください。</translation>
    </message>
    <message>
        <source>Vantrel&apos;s input helper stopped twice; choose Allow to start it again.</source>
        <translation>Vantrel の入力ヘルパーが 2 回停止しました。「許可」を選ぶと再起動します。</translation>
    </message>
</context>
<context>
    <name>GeneralSettingsView</name>
    <message>
        <source>%1s</source>
        <extracomment>A duration in seconds, the number already in the locale&apos;s form: &quot;1.5s&quot;, &quot;1,5s&quot;</extracomment>
        <translation>%1秒</translation>
    </message>
    <message numerus="yes">
        <source>%Ln keys</source>
        <translation>
            <numerusform>%Ln キー</numerusform>
        </translation>
    </message>
    <message>
        <source>App Settings</source>
        <translation>アプリの設定</translation>
    </message>
    <message>
        <source>Enable Vantrel</source>
        <translation>Vantrel を有効にする</translation>
    </message>
    <message>
        <source>Show pressed keys on screen</source>
        <translation>押したキーを画面に表示</translation>
    </message>
    <message>
        <source>Launch at Login</source>
        <translation>ログイン時に起動</translation>
    </message>
    <message>
        <source>Start Vantrel automatically when you log in</source>
        <translation>ログイン時に Vantrel を自動で起動</translation>
    </message>
    <message>
        <source>Menu Bar Icon</source>
        <translation>パネルのアイコン</translation>
    </message>
    <message>
        <source>Choose the icon for the menu bar</source>
        <translation>パネルに表示するアイコンを選択</translation>
    </message>
    <message>
        <source>Input Monitoring Access Information</source>
        <translation>キーボードへのアクセスについて</translation>
    </message>
    <message>
        <source>Input Monitoring Access</source>
        <translation>キーボードへのアクセス</translation>
    </message>
    <message>
        <source>Required to display your key presses</source>
        <translation>キー入力の表示に必要です</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Display Duration</source>
        <translation>表示時間</translation>
    </message>
    <message>
        <source>Max Keys Displayed</source>
        <translation>最大表示キー数</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Reset to default display settings</source>
        <translation>表示を初期設定に戻す</translation>
    </message>
    <message>
        <source>Key Types</source>
        <translation>キーの種類</translation>
    </message>
    <message>
        <source>Show All Keys</source>
        <translation>すべてのキーを表示</translation>
    </message>
    <message>
        <source>Display every key press</source>
        <translation>すべてのキー入力を表示</translation>
    </message>
    <message>
        <source>Show Modifier Keys</source>
        <translation>修飾キーを表示</translation>
    </message>
    <message>
        <source>Show Function Keys</source>
        <translation>ファンクションキーを表示</translation>
    </message>
    <message>
        <source>F1, F2, F3, etc.</source>
        <translation>F1、F2、F3 など</translation>
    </message>
    <message>
        <source>Show Special Keys</source>
        <translation>特殊キーを表示</translation>
    </message>
    <message>
        <source>Enter, Tab, Delete, and Escape</source>
        <translation>Enter、Tab、Delete、Esc</translation>
    </message>
    <message>
        <source>Reset to default key type settings</source>
        <translation>キーの種類を初期設定に戻す</translation>
    </message>
    <message>
        <source>Mouse Clicks</source>
        <translation>マウスクリック</translation>
    </message>
    <message>
        <source>Show Mouse Clicks</source>
        <translation>マウスクリックを表示</translation>
    </message>
    <message>
        <source>Display left and right clicks</source>
        <translation>左右のクリックを表示</translation>
    </message>
    <message>
        <source>Reset All Settings</source>
        <translation>すべてリセット</translation>
    </message>
    <message>
        <source>Reset all settings to their default values</source>
        <translation>すべての設定を初期値に戻す</translation>
    </message>
    <message>
        <source>This action cannot be undone</source>
        <translation>この操作は元に戻せません</translation>
    </message>
    <message>
        <source>Reset All Settings?</source>
        <translation>すべての設定をリセットしますか？</translation>
    </message>
    <message>
        <source>Are you sure you want to reset all settings to their default values?</source>
        <translation>すべての設定を初期値に戻してもよろしいですか？</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>GlobalShortcutNames</name>
    <message>
        <source>Toggle Vantrel</source>
        <translation>Vantrel のオン/オフ</translation>
    </message>
    <message>
        <source>Increase Key Size</source>
        <translation>キーを大きく</translation>
    </message>
    <message>
        <source>Decrease Key Size</source>
        <translation>キーを小さく</translation>
    </message>
    <message>
        <source>Open Position Customizer</source>
        <translation>位置を調整</translation>
    </message>
    <message>
        <source>Toggle Mouse Clicks</source>
        <translation>マウスクリックのオン/オフ</translation>
    </message>
</context>
<context>
    <name>InputHelperProcess</name>
    <message>
        <source>The password dialog was closed; Vantrel cannot read the keyboard.</source>
        <translation>パスワードの画面が閉じられたため、キーボードを読み取れません。</translation>
    </message>
    <message>
        <source>No authentication agent answered; start your desktop&apos;s authentication agent, then choose Check Again.</source>
        <translation>認証エージェントが応答しません。デスクトップの認証エージェントを起動してから「再確認」を選んでください。</translation>
    </message>
    <message>
        <source>Vantrel&apos;s input helper stopped.</source>
        <translation>Vantrel の入力ヘルパーが停止しました。</translation>
    </message>
</context>
<context>
    <name>InputMonitoringSheet</name>
    <message>
        <source>Input Monitoring</source>
        <translation>キーボードへのアクセス</translation>
    </message>
    <message>
        <source>Enable Input Monitoring</source>
        <translation>キーボードへのアクセスを許可</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>再確認</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>許可</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>プライバシー</translation>
    </message>
    <message>
        <source>Not covered: a password typed into a terminal (sudo, ssh) has no field to recognise, so it shows like any other typing.</source>
        <translation>対象外: 端末（sudo、ssh）で入力するパスワードには認識できる欄がないため、ほかの入力と同じように表示されます。</translation>
    </message>
    <message>
        <source>%1: on.</source>
        <translation>%1: オン。</translation>
    </message>
    <message>
        <source>%1: off.</source>
        <translation>%1: オフ。</translation>
    </message>
    <message>
        <source>Keys are not hidden anywhere: no protection is running.</source>
        <translation>キーはどこでも隠されません。動作中の保護がありません。</translation>
    </message>
</context>
<context>
    <name>KeyShortcutsSettingsView</name>
    <message>
        <source>Global Shortcuts</source>
        <translation>グローバルショートカット</translation>
    </message>
    <message>
        <source>This desktop lets you bind keys to Vantrel&apos;s commands in its keyboard settings</source>
        <translation>このデスクトップでは、キーボードの設定で Vantrel のコマンドにショートカットを割り当てます</translation>
    </message>
</context>
<context>
    <name>KeyStylePreview</name>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>KeyboardShortcutRecorder</name>
    <message>
        <source>Clear Shortcut</source>
        <translation>ショートカットを消去</translation>
    </message>
    <message>
        <source>Use at least one of Ctrl, Alt and Super, or a function key</source>
        <translation>Ctrl・Alt・Super のいずれか、またはファンクションキーを使ってください</translation>
    </message>
    <message>
        <source>%1 is already used by another program</source>
        <translation>%1 は別のプログラムで使用中です</translation>
    </message>
    <message>
        <source>%1 is already used by another shortcut</source>
        <translation>%1 は別のショートカットで使用中です</translation>
    </message>
    <message>
        <source>%1 cannot be used on this keyboard</source>
        <translation>%1 はこのキーボードでは使えません</translation>
    </message>
    <message>
        <source>Press Shortcut</source>
        <translation>キーを押してください</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>ショートカットを記録</translation>
    </message>
</context>
<context>
    <name>LogindLockWatcher</name>
    <message>
        <source>There is no system bus to ask the login manager (logind).</source>
        <translation>ログインマネージャー（logind）に問い合わせるためのシステムバスがありません。</translation>
    </message>
    <message>
        <source>The login manager (logind) does not answer.</source>
        <translation>ログインマネージャー（logind）が応答しません。</translation>
    </message>
    <message>
        <source>The login manager (logind) knows no session of yours.</source>
        <translation>ログインマネージャー（logind）にあなたのセッションが見つかりません。</translation>
    </message>
    <message>
        <source>Nothing is shown while the login manager says this session is locked.</source>
        <translation>このセッションがロック中だとログインマネージャーが伝えている間は何も表示しません。</translation>
    </message>
</context>
<context>
    <name>MouseClickIndicatorView</name>
    <message>
        <source>Left mouse click</source>
        <translation>左クリック</translation>
    </message>
    <message>
        <source>Right mouse click</source>
        <translation>右クリック</translation>
    </message>
</context>
<context>
    <name>PermissionStatusView</name>
    <message>
        <source>Granted</source>
        <translation>許可済み</translation>
    </message>
    <message>
        <source>Not Granted</source>
        <translation>未許可</translation>
    </message>
</context>
<context>
    <name>Platform</name>
    <message>
        <source>VANTREL_OVERLAY must be &quot;x11&quot; or &quot;wayland&quot;, not &quot;%1&quot;</source>
        <translation>VANTREL_OVERLAY は &quot;x11&quot; か &quot;wayland&quot; にしてください（&quot;%1&quot; は不可）</translation>
    </message>
    <message>
        <source>no Wayland compositor with the layer shell answers (VANTREL_OVERLAY=wayland needs one)</source>
        <translation>layer shell を持つ Wayland コンポジタが応答しません（VANTREL_OVERLAY=wayland には必要です）</translation>
    </message>
    <message>
        <source>no display for the overlays: the Wayland compositor offers no layer shell and DISPLAY is not set (no XWayland)</source>
        <translation>オーバーレイを表示できません：Wayland コンポジタに layer shell がなく、DISPLAY も設定されていません（XWayland なし）</translation>
    </message>
    <message>
        <source>no X11 display: DISPLAY is not set (Vantrel needs an X11 desktop)</source>
        <translation>X11 ディスプレイがありません：DISPLAY が設定されていません（Vantrel には X11 デスクトップが必要です）</translation>
    </message>
    <message>
        <source>cannot open X11 display &quot;%1&quot;</source>
        <translation>X11 ディスプレイ &quot;%1&quot; を開けません</translation>
    </message>
</context>
<context>
    <name>PositionCustomizerHeader</name>
    <message>
        <source>Drag to Position</source>
        <translation>ドラッグして配置</translation>
    </message>
    <message>
        <source>Drag the key display to your desired location. Click anywhere to save or press Escape to ignore changes.</source>
        <translation>キーの表示を好きな場所へドラッグしてください。どこかをクリックすると保存、Esc で取り消します。</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隠す</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
</context>
<context>
    <name>PositionCustomizerWindowController</name>
    <message>
        <source>Drag to Position</source>
        <translation>ドラッグして配置</translation>
    </message>
</context>
<context>
    <name>SavePresetDialog</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>スタイルを保存</translation>
    </message>
    <message>
        <source>Preset Name</source>
        <translation>スタイル名</translation>
    </message>
</context>
<context>
    <name>ScreenSaverLockWatcher</name>
    <message>
        <source>There is no session bus to hear the screen locker on.</source>
        <translation>スクリーンロッカーの通知を受け取るためのセッションバスがありません。</translation>
    </message>
    <message>
        <source>Nothing is shown while the screen locker is active.</source>
        <translation>スクリーンロッカーの動作中は何も表示しません。</translation>
    </message>
</context>
<context>
    <name>Secrecy</name>
    <message>
        <source>Locked session</source>
        <translation>セッションのロック</translation>
    </message>
    <message>
        <source>Screen locker</source>
        <translation>スクリーンロッカー</translation>
    </message>
    <message>
        <source>X11 screen saver</source>
        <translation>X11 スクリーンセーバー</translation>
    </message>
    <message>
        <source>Password fields</source>
        <translation>パスワード欄</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Vantrel Settings</source>
        <translation>Vantrel の設定</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Appearance settings are not available yet.</source>
        <translation>外観の設定はまだ利用できません。</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外観</translation>
    </message>
    <message>
        <source>Displays</source>
        <translation>ディスプレイ</translation>
    </message>
    <message>
        <source>Shortcut settings are not available yet.</source>
        <translation>ショートカットの設定はまだ利用できません。</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>About</source>
        <translation>情報</translation>
    </message>
</context>
<context>
    <name>TrayMenu</name>
    <message>
        <source>Increase Key Size</source>
        <translation>キーを大きく</translation>
    </message>
    <message>
        <source>Decrease Key Size</source>
        <translation>キーを小さく</translation>
    </message>
    <message>
        <source>Open Position Customizer</source>
        <translation>位置を調整</translation>
    </message>
    <message>
        <source>Toggle Mouse Clicks</source>
        <translation>マウスクリックのオン/オフ</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>FAQ</source>
        <translation>よくある質問</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>サポート</translation>
    </message>
    <message>
        <source>Social</source>
        <translation>ソーシャル</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Web サイト</translation>
    </message>
    <message>
        <source>Suggest Idea</source>
        <translation>アイデアを提案</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>ほかのアプリ</translation>
    </message>
    <message>
        <source>Quit Vantrel</source>
        <translation>Vantrel を終了</translation>
    </message>
    <message>
        <source>Stop Vantrel</source>
        <translation>Vantrel を停止</translation>
    </message>
    <message>
        <source>Start Vantrel</source>
        <translation>Vantrel を開始</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>The update server answered with HTTP error %1%2.</source>
        <translation>アップデートサーバーが HTTP エラー %1%2 を返しました。</translation>
    </message>
    <message>
        <source>The update server did not answer within %1 seconds.</source>
        <translation>アップデートサーバーが %1 秒以内に応答しませんでした。</translation>
    </message>
    <message>
        <source>Could not reach the update server (%1). Check that you are online and try again.</source>
        <translation>アップデートサーバーに接続できません（%1）。オンラインか確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The update check failed: %1.</source>
        <translation>アップデートの確認に失敗しました：%1。</translation>
    </message>
    <message>
        <source>The update feed lists no versions.</source>
        <translation>アップデートフィードにバージョンがありません。</translation>
    </message>
    <message>
        <source>The update feed is not an RSS feed.</source>
        <translation>アップデートフィードが RSS ではありません。</translation>
    </message>
</context>
<context>
    <name>Utils</name>
    <message>
        <source>Version %1 (Build %2)</source>
        <translation>バージョン %1（ビルド %2）</translation>
    </message>
</context>
<context>
    <name>VantrelApp</name>
    <message>
        <source>Start or stop showing keys.</source>
        <translation>キーの表示を開始または停止します。</translation>
    </message>
    <message>
        <source>Make the key caps larger.</source>
        <translation>キーを大きくします。</translation>
    </message>
    <message>
        <source>Make the key caps smaller.</source>
        <translation>キーを小さくします。</translation>
    </message>
    <message>
        <source>Drag the key row to a place of your own.</source>
        <translation>キーの列を好きな場所へドラッグします。</translation>
    </message>
    <message>
        <source>Show or hide mouse clicks.</source>
        <translation>マウスクリックの表示を切り替えます。</translation>
    </message>
    <message>
        <source>Open the settings window.</source>
        <translation>設定ウインドウを開きます。</translation>
    </message>
    <message>
        <source>Quit Vantrel.</source>
        <translation>Vantrel を終了します。</translation>
    </message>
    <message>
        <source>Usage: vantrel [option]

Shows the keys you press as key caps in a transparent overlay on each enabled
display, for presentations, teaching, streams and screencasts. It lives in the
system tray; starting it again opens the settings of the running Vantrel.

Options:
</source>
        <translation>使い方: vantrel [オプション]

押したキーを、有効な各ディスプレイ上の透明なオーバーレイに表示します。
プレゼンテーション、授業、配信、画面録画に。システムトレイに常駐し、
もう一度起動すると実行中の Vantrel の設定が開きます。

オプション:
</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>このヘルプを表示して終了します。</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>バージョンを表示して終了します。</translation>
    </message>
    <message>
        <source>Remote control of the running Vantrel (bind these to keys of your desktop):</source>
        <translation>実行中の Vantrel の遠隔操作（デスクトップのショートカットに割り当てます）:</translation>
    </message>
    <message>
        <source>Sessions:
  X11      keys from the X server; overlays are X11 windows.
  Wayland  keys from the input devices (/dev/input, or the folder named by
           VANTREL_INPUT_DIR), named by the compositor&apos;s keymap; overlays are
           layer surfaces where the compositor offers the layer shell, X11
           windows through XWayland otherwise. VANTREL_OVERLAY=wayland or
           VANTREL_OVERLAY=x11 chooses one of the two. Reading the devices needs
           the input group, or &quot;Allow&quot; in the settings (an administrator&apos;s
           password starts vantrel-input-helper through pkexec).
</source>
        <translation>セッション:
  X11      キーは X サーバーから。オーバーレイは X11 ウインドウです。
  Wayland  キーは入力デバイス（/dev/input、または VANTREL_INPUT_DIR の
           フォルダ）から読み、コンポジタのキーマップで名前を付けます。
           オーバーレイは、コンポジタが layer shell を提供すればその
           サーフェス、なければ XWayland 経由の X11 ウインドウです。
           VANTREL_OVERLAY=wayland または VANTREL_OVERLAY=x11 で選べます。
           デバイスの読み取りには input グループか、設定の「許可」が必要です
           （管理者パスワードで pkexec が vantrel-input-helper を起動します）。
</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>設定ファイル: %1</translation>
    </message>
    <message>
        <source>Vantrel is not running</source>
        <translation>Vantrel は実行されていません</translation>
    </message>
    <message>
        <source>one option at a time, not &apos;%1&apos; (see vantrel --help)</source>
        <translation>オプションは一度に 1 つだけです（&apos;%1&apos; は不可、vantrel --help を参照）</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; (see vantrel --help)</source>
        <translation>不明なオプション &apos;%1&apos;（vantrel --help を参照）</translation>
    </message>
    <message>
        <source>Vantrel is already running; its settings window opens.</source>
        <translation>Vantrel は実行中です。設定ウインドウを開きます。</translation>
    </message>
    <message>
        <source>another Vantrel holds the session but does not answer</source>
        <translation>別の Vantrel がセッションを使用中ですが応答しません</translation>
    </message>
    <message>
        <source>no D-Bus session bus; running alone, without remote control or the one-instance check</source>
        <translation>D-Bus セッションバスがありません。遠隔操作と二重起動の確認なしで単独で動作します</translation>
    </message>
    <message>
        <source>cannot listen to the keyboard: %1</source>
        <translation>キーボードを読み取れません：%1</translation>
    </message>
    <message>
        <source>Vantrel is switched off (&quot;Show pressed keys on screen&quot; is off).</source>
        <translation>Vantrel はオフです（「押したキーを画面に表示」がオフ）。</translation>
    </message>
    <message>
        <source>the shortcut %1 of &quot;%2&quot; is already used by another program; it does nothing until that program lets it go</source>
        <translation>「%2」のショートカット %1 は別のプログラムで使用中です。そのプログラムが解放するまで動作しません</translation>
    </message>
    <message>
        <source>no system tray found; opening the settings window instead of the tray menu</source>
        <translation>システムトレイが見つかりません。メニューの代わりに設定ウインドウを開きます</translation>
    </message>
    <message>
        <source>Vantrel is showing pressed keys on screen.</source>
        <translation>Vantrel は押したキーを画面に表示しています。</translation>
    </message>
    <message>
        <source>Vantrel stopped showing pressed keys.</source>
        <translation>Vantrel はキーの表示を停止しました。</translation>
    </message>
    <message>
        <source>Privacy: nothing is shown, keys, modifiers and clicks alike, while the session is
locked (logind, the screen locker&apos;s signals, the X11 screen saver) or while a
password field has the focus (followed on the accessibility bus, AT-SPI2).
Settings &gt; General &gt; Input Monitoring lists which protections are on.
Not covered: a password typed into a terminal (sudo, ssh) has no field to
detect; switch Vantrel off first (vantrel --toggle).
</source>
        <translation>プライバシー: セッションがロックされている間（logind、スクリーンロッカーの
シグナル、X11 スクリーンセーバー）と、パスワード欄にフォーカスがある間
（アクセシビリティバス AT-SPI2 で追跡）は、キーも修飾キーもクリックも
表示しません。どの保護がオンかは「設定 &gt; 一般 &gt; キーボードへのアクセス」
で確認できます。
対象外: 端末（sudo、ssh）で入力するパスワードには検出できる欄がありません。
先に Vantrel をオフにしてください（vantrel --toggle）。
</translation>
    </message>
</context>
<context>
    <name>X11CaptureBackend</name>
    <message>
        <source>The X server has no XInput extension; Vantrel needs XInput 2.2.</source>
        <translation>X サーバーに XInput 拡張がありません。Vantrel には XInput 2.2 が必要です。</translation>
    </message>
    <message>
        <source>The X server did not answer the XInput version query.</source>
        <translation>X サーバーが XInput のバージョン照会に応答しませんでした。</translation>
    </message>
    <message>
        <source>The X server offers XInput %1.%2; Vantrel needs XInput 2.2 or newer.</source>
        <translation>X サーバーの XInput は %1.%2 です。Vantrel には XInput 2.2 以降が必要です。</translation>
    </message>
    <message>
        <source>No X display is set (DISPLAY is empty); Vantrel needs an X11 desktop.</source>
        <translation>X ディスプレイが設定されていません（DISPLAY が空です）。Vantrel には X11 デスクトップが必要です。</translation>
    </message>
    <message>
        <source>Vantrel cannot open the X display &quot;%1&quot;.</source>
        <translation>X ディスプレイ &quot;%1&quot; を開けません。</translation>
    </message>
    <message>
        <source>Log in to an X11 session (Xorg), not a Wayland one.</source>
        <translation>Wayland ではなく X11（Xorg）のセッションにログインしてください。</translation>
    </message>
    <message>
        <source>Make sure the X server offers XInput 2.2 (every current Xorg does).</source>
        <translation>X サーバーが XInput 2.2 を提供していることを確認してください（現行の Xorg はすべて対応）。</translation>
    </message>
</context>
<context>
    <name>X11ScreenSaverWatcher</name>
    <message>
        <source>The X server has no screen saver extension (MIT-SCREEN-SAVER).</source>
        <translation>X サーバーにスクリーンセーバー拡張（MIT-SCREEN-SAVER）がありません。</translation>
    </message>
    <message>
        <source>Nothing is shown while the X11 screen saver or locker is on.</source>
        <translation>X11 のスクリーンセーバーかロッカーの動作中は何も表示しません。</translation>
    </message>
</context>
</TS>
