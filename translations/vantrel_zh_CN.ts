<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AboutSettingsView</name>
    <message>
        <source>Official Website</source>
        <translation>官方网站</translation>
    </message>
    <message>
        <source>Visit the official Vantrel website</source>
        <translation>访问 Vantrel 官方网站</translation>
    </message>
    <message>
        <source>Watch Vantrel videos on YouTube</source>
        <translation>在 YouTube 上观看 Vantrel 视频</translation>
    </message>
</context>
<context>
    <name>AddPresetTile</name>
    <message>
        <source>New Preset</source>
        <translation>新建样式</translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>Software Update</source>
        <translation>软件更新</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>正在检查更新…</translation>
    </message>
    <message>
        <source>Asking %1</source>
        <translation>正在询问 %1</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>已是最新版本！</translation>
    </message>
    <message>
        <source>Vantrel %1 is the newest version available.</source>
        <translation>Vantrel %1 是最新版本。</translation>
    </message>
    <message>
        <source>A new version of Vantrel is available!</source>
        <translation>Vantrel 有新版本可用！</translation>
    </message>
    <message>
        <source>Vantrel %1 is available; you have %2.</source>
        <translation>Vantrel %1 已发布；你的版本是 %2。</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>以后再说</translation>
    </message>
    <message>
        <source>Vantrel could not check for updates.</source>
        <translation>Vantrel 无法检查更新。</translation>
    </message>
</context>
<context>
    <name>AppearanceSettingsView</name>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>间距</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>圆角半径</translation>
    </message>
    <message>
        <source>Border Width</source>
        <translation>边框宽度</translation>
    </message>
    <message>
        <source>Shadow Radius</source>
        <translation>阴影半径</translation>
    </message>
    <message>
        <source>Glow Radius</source>
        <translation>发光半径</translation>
    </message>
    <message>
        <source>Modern</source>
        <translation>现代</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>经典</translation>
    </message>
    <message>
        <source>Minimal</source>
        <translation>极简</translation>
    </message>
    <message>
        <source>Gaming</source>
        <translation>游戏</translation>
    </message>
    <message>
        <source>Neon</source>
        <translation>霓虹</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Fade In</source>
        <translation>淡入</translation>
    </message>
    <message>
        <source>Scale In</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Slide In</source>
        <translation>滑入</translation>
    </message>
    <message>
        <source>Bounce</source>
        <translation>弹跳</translation>
    </message>
    <message>
        <source>Style Presets</source>
        <translation>样式预设</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>动画</translation>
    </message>
    <message>
        <source>How keys appear on screen</source>
        <translation>按键在屏幕上出现的方式</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>Choose the font family</source>
        <translation>选择字体</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Text Color</source>
        <translation>文字颜色</translation>
    </message>
    <message>
        <source>Color of the key labels</source>
        <translation>按键文字的颜色</translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation>背景颜色</translation>
    </message>
    <message>
        <source>Color of the key background</source>
        <translation>按键背景的颜色</translation>
    </message>
    <message>
        <source>Border Color</source>
        <translation>边框颜色</translation>
    </message>
    <message>
        <source>Color of the key border</source>
        <translation>按键边框的颜色</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>效果</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>阴影</translation>
    </message>
    <message>
        <source>Add drop shadow to keys</source>
        <translation>为按键添加阴影</translation>
    </message>
    <message>
        <source>Shadow Color</source>
        <translation>阴影颜色</translation>
    </message>
    <message>
        <source>Color of the drop shadow</source>
        <translation>阴影的颜色</translation>
    </message>
    <message>
        <source>Glow Effect</source>
        <translation>发光效果</translation>
    </message>
    <message>
        <source>Add glow effect to keys</source>
        <translation>为按键添加发光效果</translation>
    </message>
    <message>
        <source>Glow Color</source>
        <translation>发光颜色</translation>
    </message>
    <message>
        <source>Color of the glow effect</source>
        <translation>发光效果的颜色</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Reset to default appearance settings</source>
        <translation>将外观恢复为默认设置</translation>
    </message>
</context>
<context>
    <name>AtSpiFocusWatcher</name>
    <message>
        <source>The accessibility bus (AT-SPI) is not running, so password fields cannot be recognised.</source>
        <translation>无障碍总线（AT-SPI）未运行，因此无法识别密码框。</translation>
    </message>
    <message>
        <source>There is no session bus to find the accessibility bus on.</source>
        <translation>没有会话总线，无法找到无障碍总线。</translation>
    </message>
    <message>
        <source>Nothing is shown while a password field has the focus.</source>
        <translation>密码框获得焦点时不显示任何内容。</translation>
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
        <translation>顶部居中</translation>
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
        <translation>底部居中</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>Connected Displays</source>
        <translation>已连接的显示器</translation>
    </message>
    <message>
        <source>No displays detected</source>
        <translation>未检测到显示器</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>重新扫描</translation>
    </message>
    <message>
        <source>Refresh the list of connected displays</source>
        <translation>刷新已连接显示器的列表</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Reset display settings to defaults</source>
        <translation>将显示器设置恢复为默认值</translation>
    </message>
    <message>
        <source>Keystrokes will be shown on this display</source>
        <translation>在此显示器上显示按键</translation>
    </message>
    <message>
        <source>Keystrokes will be not shown on this display</source>
        <translation>不在此显示器上显示按键</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Edit custom position</source>
        <translation>编辑自定义位置</translation>
    </message>
</context>
<context>
    <name>EvdevCaptureBackend</name>
    <message>
        <source>Vantrel finds no input devices: the folder %1 does not exist.</source>
        <translation>Vantrel 找不到输入设备：文件夹 %1 不存在。</translation>
    </message>
    <message>
        <source>You are in the input group, but this session began before you joined it: log out and back in.</source>
        <translation>你已在 input 组中，但本次会话在加入之前就已开始：请注销后重新登录。</translation>
    </message>
    <message>
        <source>Vantrel cannot read the input devices in %1 (permission denied).</source>
        <translation>Vantrel 无法读取 %1 中的输入设备（权限被拒绝）。</translation>
    </message>
    <message>
        <source>Vantrel finds no keyboard in %1.</source>
        <translation>Vantrel 在 %1 中找不到键盘。</translation>
    </message>
    <message>
        <source>Choose Allow and give an administrator&apos;s password: Vantrel&apos;s input helper then reads the keyboard until Vantrel quits. If no password dialog appears, start your desktop&apos;s authentication agent and choose Allow again.</source>
        <translation>选择“允许”并输入管理员密码：Vantrel 的输入助手将读取键盘，直到 Vantrel 退出。如果没有出现密码对话框，请启动桌面的身份验证代理，然后再次选择“允许”。</translation>
    </message>
    <message>
        <source>Or add yourself to the input group: sudo usermod -aG input $USER. Every program you run can then read every key you type.</source>
        <translation>或者将自己加入 input 组：sudo usermod -aG input $USER。这样你运行的每个程序都能读取你按下的每个键。</translation>
    </message>
    <message>
        <source>Log out and back in, so that the new group applies, then choose Check Again.</source>
        <translation>注销并重新登录以使新组生效，然后选择“重新检查”。</translation>
    </message>
    <message>
        <source>Vantrel&apos;s input helper stopped twice; choose Allow to start it again.</source>
        <translation>Vantrel 的输入助手已停止两次；选择“允许”以重新启动。</translation>
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
            <numerusform>%Ln 个按键</numerusform>
        </translation>
    </message>
    <message>
        <source>App Settings</source>
        <translation>应用设置</translation>
    </message>
    <message>
        <source>Enable Vantrel</source>
        <translation>启用 Vantrel</translation>
    </message>
    <message>
        <source>Show pressed keys on screen</source>
        <translation>在屏幕上显示按下的键</translation>
    </message>
    <message>
        <source>Launch at Login</source>
        <translation>登录时启动</translation>
    </message>
    <message>
        <source>Start Vantrel automatically when you log in</source>
        <translation>登录时自动启动 Vantrel</translation>
    </message>
    <message>
        <source>Menu Bar Icon</source>
        <translation>面板图标</translation>
    </message>
    <message>
        <source>Choose the icon for the menu bar</source>
        <translation>选择面板中显示的图标</translation>
    </message>
    <message>
        <source>Input Monitoring Access Information</source>
        <translation>键盘访问权限说明</translation>
    </message>
    <message>
        <source>Input Monitoring Access</source>
        <translation>键盘访问权限</translation>
    </message>
    <message>
        <source>Required to display your key presses</source>
        <translation>显示按键所必需</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Display Duration</source>
        <translation>显示时长</translation>
    </message>
    <message>
        <source>Max Keys Displayed</source>
        <translation>最多显示按键数</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Reset to default display settings</source>
        <translation>将显示设置恢复为默认值</translation>
    </message>
    <message>
        <source>Key Types</source>
        <translation>按键类型</translation>
    </message>
    <message>
        <source>Show All Keys</source>
        <translation>显示所有按键</translation>
    </message>
    <message>
        <source>Display every key press</source>
        <translation>显示每次按键</translation>
    </message>
    <message>
        <source>Show Modifier Keys</source>
        <translation>显示修饰键</translation>
    </message>
    <message>
        <source>Show Function Keys</source>
        <translation>显示功能键</translation>
    </message>
    <message>
        <source>F1, F2, F3, etc.</source>
        <translation>F1、F2、F3 等</translation>
    </message>
    <message>
        <source>Show Special Keys</source>
        <translation>显示特殊键</translation>
    </message>
    <message>
        <source>Enter, Tab, Delete, and Escape</source>
        <translation>Enter、Tab、Delete 和 Esc</translation>
    </message>
    <message>
        <source>Reset to default key type settings</source>
        <translation>将按键类型恢复为默认值</translation>
    </message>
    <message>
        <source>Mouse Clicks</source>
        <translation>鼠标点击</translation>
    </message>
    <message>
        <source>Show Mouse Clicks</source>
        <translation>显示鼠标点击</translation>
    </message>
    <message>
        <source>Display left and right clicks</source>
        <translation>显示左键和右键点击</translation>
    </message>
    <message>
        <source>Reset All Settings</source>
        <translation>全部重置</translation>
    </message>
    <message>
        <source>Reset all settings to their default values</source>
        <translation>将所有设置恢复为默认值</translation>
    </message>
    <message>
        <source>This action cannot be undone</source>
        <translation>此操作无法撤销</translation>
    </message>
    <message>
        <source>Reset All Settings?</source>
        <translation>重置所有设置？</translation>
    </message>
    <message>
        <source>Are you sure you want to reset all settings to their default values?</source>
        <translation>确定要将所有设置恢复为默认值吗？</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>GlobalShortcutNames</name>
    <message>
        <source>Toggle Vantrel</source>
        <translation>开关 Vantrel</translation>
    </message>
    <message>
        <source>Increase Key Size</source>
        <translation>增大按键</translation>
    </message>
    <message>
        <source>Decrease Key Size</source>
        <translation>减小按键</translation>
    </message>
    <message>
        <source>Open Position Customizer</source>
        <translation>调整位置</translation>
    </message>
    <message>
        <source>Toggle Mouse Clicks</source>
        <translation>开关鼠标点击显示</translation>
    </message>
</context>
<context>
    <name>InputHelperProcess</name>
    <message>
        <source>The password dialog was closed; Vantrel cannot read the keyboard.</source>
        <translation>密码对话框已关闭；Vantrel 无法读取键盘。</translation>
    </message>
    <message>
        <source>No authentication agent answered; start your desktop&apos;s authentication agent, then choose Check Again.</source>
        <translation>没有身份验证代理响应；请启动桌面的身份验证代理，然后选择“重新检查”。</translation>
    </message>
    <message>
        <source>Vantrel&apos;s input helper stopped.</source>
        <translation>Vantrel 的输入助手已停止。</translation>
    </message>
</context>
<context>
    <name>InputMonitoringSheet</name>
    <message>
        <source>Input Monitoring</source>
        <translation>键盘访问权限</translation>
    </message>
    <message>
        <source>Enable Input Monitoring</source>
        <translation>允许访问键盘</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>重新检查</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>允许</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>隐私</translation>
    </message>
    <message>
        <source>Not covered: a password typed into a terminal (sudo, ssh) has no field to recognise, so it shows like any other typing.</source>
        <translation>未涵盖：在终端（sudo、ssh）中输入的密码没有可识别的输入框，因此会像其他输入一样显示。</translation>
    </message>
    <message>
        <source>%1: on.</source>
        <translation>%1：已开启。</translation>
    </message>
    <message>
        <source>%1: off.</source>
        <translation>%1：已关闭。</translation>
    </message>
    <message>
        <source>Keys are not hidden anywhere: no protection is running.</source>
        <translation>不会隐藏任何按键：没有正在运行的保护。</translation>
    </message>
</context>
<context>
    <name>KeyShortcutsSettingsView</name>
    <message>
        <source>Global Shortcuts</source>
        <translation>全局快捷键</translation>
    </message>
    <message>
        <source>This desktop lets you bind keys to Vantrel&apos;s commands in its keyboard settings</source>
        <translation>在此桌面上，请在键盘设置中为 Vantrel 的命令绑定快捷键</translation>
    </message>
</context>
<context>
    <name>KeyStylePreview</name>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>KeyboardShortcutRecorder</name>
    <message>
        <source>Clear Shortcut</source>
        <translation>清除快捷键</translation>
    </message>
    <message>
        <source>Use at least one of Ctrl, Alt and Super, or a function key</source>
        <translation>请至少使用 Ctrl、Alt、Super 之一，或使用功能键</translation>
    </message>
    <message>
        <source>%1 is already used by another program</source>
        <translation>%1 已被其他程序占用</translation>
    </message>
    <message>
        <source>%1 is already used by another shortcut</source>
        <translation>%1 已被其他快捷键使用</translation>
    </message>
    <message>
        <source>%1 cannot be used on this keyboard</source>
        <translation>%1 无法在此键盘上使用</translation>
    </message>
    <message>
        <source>Press Shortcut</source>
        <translation>请按快捷键</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>录制快捷键</translation>
    </message>
</context>
<context>
    <name>LogindLockWatcher</name>
    <message>
        <source>There is no system bus to ask the login manager (logind).</source>
        <translation>没有系统总线，无法询问登录管理器（logind）。</translation>
    </message>
    <message>
        <source>The login manager (logind) does not answer.</source>
        <translation>登录管理器（logind）没有响应。</translation>
    </message>
    <message>
        <source>The login manager (logind) knows no session of yours.</source>
        <translation>登录管理器（logind）找不到你的会话。</translation>
    </message>
    <message>
        <source>Nothing is shown while the login manager says this session is locked.</source>
        <translation>登录管理器报告此会话已锁定时不显示任何内容。</translation>
    </message>
</context>
<context>
    <name>MouseClickIndicatorView</name>
    <message>
        <source>Left mouse click</source>
        <translation>鼠标左键单击</translation>
    </message>
    <message>
        <source>Right mouse click</source>
        <translation>鼠标右键单击</translation>
    </message>
</context>
<context>
    <name>PermissionStatusView</name>
    <message>
        <source>Granted</source>
        <translation>已授权</translation>
    </message>
    <message>
        <source>Not Granted</source>
        <translation>未授权</translation>
    </message>
</context>
<context>
    <name>Platform</name>
    <message>
        <source>VANTREL_OVERLAY must be &quot;x11&quot; or &quot;wayland&quot;, not &quot;%1&quot;</source>
        <translation>VANTREL_OVERLAY 必须为“x11”或“wayland”，而不是“%1”</translation>
    </message>
    <message>
        <source>no Wayland compositor with the layer shell answers (VANTREL_OVERLAY=wayland needs one)</source>
        <translation>没有支持 layer shell 的 Wayland 合成器响应（VANTREL_OVERLAY=wayland 需要它）</translation>
    </message>
    <message>
        <source>no display for the overlays: the Wayland compositor offers no layer shell and DISPLAY is not set (no XWayland)</source>
        <translation>无法显示叠加层：Wayland 合成器不提供 layer shell，且未设置 DISPLAY（没有 XWayland）</translation>
    </message>
    <message>
        <source>no X11 display: DISPLAY is not set (Vantrel needs an X11 desktop)</source>
        <translation>没有 X11 显示：未设置 DISPLAY（Vantrel 需要 X11 桌面）</translation>
    </message>
    <message>
        <source>cannot open X11 display &quot;%1&quot;</source>
        <translation>无法打开 X11 显示“%1”</translation>
    </message>
</context>
<context>
    <name>PositionCustomizerHeader</name>
    <message>
        <source>Drag to Position</source>
        <translation>拖动以定位</translation>
    </message>
    <message>
        <source>Drag the key display to your desired location. Click anywhere to save or press Escape to ignore changes.</source>
        <translation>将按键显示拖到所需位置。单击任意处保存，按 Esc 放弃更改。</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
</context>
<context>
    <name>PositionCustomizerWindowController</name>
    <message>
        <source>Drag to Position</source>
        <translation>拖动以定位</translation>
    </message>
</context>
<context>
    <name>SavePresetDialog</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>保存样式</translation>
    </message>
    <message>
        <source>Preset Name</source>
        <translation>样式名称</translation>
    </message>
</context>
<context>
    <name>ScreenSaverLockWatcher</name>
    <message>
        <source>There is no session bus to hear the screen locker on.</source>
        <translation>没有会话总线，无法接收锁屏程序的信号。</translation>
    </message>
    <message>
        <source>Nothing is shown while the screen locker is active.</source>
        <translation>锁屏程序启用时不显示任何内容。</translation>
    </message>
</context>
<context>
    <name>Secrecy</name>
    <message>
        <source>Locked session</source>
        <translation>会话锁定</translation>
    </message>
    <message>
        <source>Screen locker</source>
        <translation>锁屏程序</translation>
    </message>
    <message>
        <source>X11 screen saver</source>
        <translation>X11 屏幕保护程序</translation>
    </message>
    <message>
        <source>Password fields</source>
        <translation>密码框</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Vantrel Settings</source>
        <translation>Vantrel 设置</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Appearance settings are not available yet.</source>
        <translation>外观设置暂不可用。</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Displays</source>
        <translation>显示器</translation>
    </message>
    <message>
        <source>Shortcut settings are not available yet.</source>
        <translation>快捷键设置暂不可用。</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
</context>
<context>
    <name>TrayMenu</name>
    <message>
        <source>Increase Key Size</source>
        <translation>增大按键</translation>
    </message>
    <message>
        <source>Decrease Key Size</source>
        <translation>减小按键</translation>
    </message>
    <message>
        <source>Open Position Customizer</source>
        <translation>调整位置</translation>
    </message>
    <message>
        <source>Toggle Mouse Clicks</source>
        <translation>开关鼠标点击显示</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>FAQ</source>
        <translation>常见问题</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>支持</translation>
    </message>
    <message>
        <source>Social</source>
        <translation>社交媒体</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>检查更新…</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>网站</translation>
    </message>
    <message>
        <source>Suggest Idea</source>
        <translation>提出建议</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>更多应用</translation>
    </message>
    <message>
        <source>Quit Vantrel</source>
        <translation>退出 Vantrel</translation>
    </message>
    <message>
        <source>Stop Vantrel</source>
        <translation>停止 Vantrel</translation>
    </message>
    <message>
        <source>Start Vantrel</source>
        <translation>启动 Vantrel</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>The update server answered with HTTP error %1%2.</source>
        <translation>更新服务器返回了 HTTP 错误 %1%2。</translation>
    </message>
    <message>
        <source>The update server did not answer within %1 seconds.</source>
        <translation>更新服务器在 %1 秒内没有响应。</translation>
    </message>
    <message>
        <source>Could not reach the update server (%1). Check that you are online and try again.</source>
        <translation>无法连接更新服务器（%1）。请检查网络连接后重试。</translation>
    </message>
    <message>
        <source>The update check failed: %1.</source>
        <translation>检查更新失败：%1。</translation>
    </message>
    <message>
        <source>The update feed lists no versions.</source>
        <translation>更新源中没有列出任何版本。</translation>
    </message>
    <message>
        <source>The update feed is not an RSS feed.</source>
        <translation>更新源不是 RSS 源。</translation>
    </message>
</context>
<context>
    <name>Utils</name>
    <message>
        <source>Version %1 (Build %2)</source>
        <translation>版本 %1（构建 %2）</translation>
    </message>
</context>
<context>
    <name>VantrelApp</name>
    <message>
        <source>Start or stop showing keys.</source>
        <translation>开始或停止显示按键。</translation>
    </message>
    <message>
        <source>Make the key caps larger.</source>
        <translation>增大按键。</translation>
    </message>
    <message>
        <source>Make the key caps smaller.</source>
        <translation>减小按键。</translation>
    </message>
    <message>
        <source>Drag the key row to a place of your own.</source>
        <translation>将按键行拖到自定义位置。</translation>
    </message>
    <message>
        <source>Show or hide mouse clicks.</source>
        <translation>显示或隐藏鼠标点击。</translation>
    </message>
    <message>
        <source>Open the settings window.</source>
        <translation>打开设置窗口。</translation>
    </message>
    <message>
        <source>Quit Vantrel.</source>
        <translation>退出 Vantrel。</translation>
    </message>
    <message>
        <source>Usage: vantrel [option]

Shows the keys you press as key caps in a transparent overlay on each enabled
display, for presentations, teaching, streams and screencasts. It lives in the
system tray; starting it again opens the settings of the running Vantrel.

Options:
</source>
        <translation>用法：vantrel [选项]

在每个已启用的显示器上以透明叠加层显示你按下的键，适用于演示、教学、
直播和录屏。它常驻系统托盘；再次启动会打开正在运行的 Vantrel 的设置。

选项：
</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>显示此帮助并退出。</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>显示版本并退出。</translation>
    </message>
    <message>
        <source>Remote control of the running Vantrel (bind these to keys of your desktop):</source>
        <translation>远程控制正在运行的 Vantrel（在桌面中为其绑定快捷键）：</translation>
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
        <translation>会话：
  X11      按键来自 X 服务器；叠加层为 X11 窗口。
  Wayland  按键来自输入设备（/dev/input，或 VANTREL_INPUT_DIR 指定的
           文件夹），按合成器的键盘映射命名；合成器提供 layer shell 时
           叠加层为 layer shell 表面，否则为通过 XWayland 的 X11 窗口。
           VANTREL_OVERLAY=wayland 或 VANTREL_OVERLAY=x11 可二选一。
           读取设备需要 input 组，或在设置中选择“允许”（管理员密码会
           通过 pkexec 启动 vantrel-input-helper）。
</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>设置：%1</translation>
    </message>
    <message>
        <source>Vantrel is not running</source>
        <translation>Vantrel 未在运行</translation>
    </message>
    <message>
        <source>one option at a time, not &apos;%1&apos; (see vantrel --help)</source>
        <translation>一次只能使用一个选项，而不是“%1”（参见 vantrel --help）</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; (see vantrel --help)</source>
        <translation>未知选项“%1”（参见 vantrel --help）</translation>
    </message>
    <message>
        <source>Vantrel is already running; its settings window opens.</source>
        <translation>Vantrel 已在运行；将打开其设置窗口。</translation>
    </message>
    <message>
        <source>another Vantrel holds the session but does not answer</source>
        <translation>另一个 Vantrel 占用了会话但没有响应</translation>
    </message>
    <message>
        <source>no D-Bus session bus; running alone, without remote control or the one-instance check</source>
        <translation>没有 D-Bus 会话总线；将单独运行，没有远程控制和单实例检查</translation>
    </message>
    <message>
        <source>cannot listen to the keyboard: %1</source>
        <translation>无法监听键盘：%1</translation>
    </message>
    <message>
        <source>Vantrel is switched off (&quot;Show pressed keys on screen&quot; is off).</source>
        <translation>Vantrel 已关闭（“在屏幕上显示按下的键”已关闭）。</translation>
    </message>
    <message>
        <source>the shortcut %1 of &quot;%2&quot; is already used by another program; it does nothing until that program lets it go</source>
        <translation>“%2”的快捷键 %1 已被其他程序占用；在该程序释放之前它不会起作用</translation>
    </message>
    <message>
        <source>no system tray found; opening the settings window instead of the tray menu</source>
        <translation>未找到系统托盘；将打开设置窗口代替托盘菜单</translation>
    </message>
    <message>
        <source>Vantrel is showing pressed keys on screen.</source>
        <translation>Vantrel 正在屏幕上显示按下的键。</translation>
    </message>
    <message>
        <source>Vantrel stopped showing pressed keys.</source>
        <translation>Vantrel 已停止显示按下的键。</translation>
    </message>
    <message>
        <source>Privacy: nothing is shown, keys, modifiers and clicks alike, while the session is
locked (logind, the screen locker&apos;s signals, the X11 screen saver) or while a
password field has the focus (followed on the accessibility bus, AT-SPI2).
Settings &gt; General &gt; Input Monitoring lists which protections are on.
Not covered: a password typed into a terminal (sudo, ssh) has no field to
detect; switch Vantrel off first (vantrel --toggle).
</source>
        <translation>隐私：会话锁定时（logind、锁屏程序的信号、X11 屏幕保护程序），或密码框
获得焦点时（通过无障碍总线 AT-SPI2 跟踪），不显示任何内容，包括按键、
修饰键和点击。“设置 &gt; 常规 &gt; 键盘访问权限”会列出哪些保护已开启。
未涵盖：在终端（sudo、ssh）中输入的密码没有可检测的输入框；请先关闭
Vantrel（vantrel --toggle）。
</translation>
    </message>
</context>
<context>
    <name>X11CaptureBackend</name>
    <message>
        <source>The X server has no XInput extension; Vantrel needs XInput 2.2.</source>
        <translation>X 服务器没有 XInput 扩展；Vantrel 需要 XInput 2.2。</translation>
    </message>
    <message>
        <source>The X server did not answer the XInput version query.</source>
        <translation>X 服务器没有响应 XInput 版本查询。</translation>
    </message>
    <message>
        <source>The X server offers XInput %1.%2; Vantrel needs XInput 2.2 or newer.</source>
        <translation>X 服务器提供的是 XInput %1.%2；Vantrel 需要 XInput 2.2 或更高版本。</translation>
    </message>
    <message>
        <source>No X display is set (DISPLAY is empty); Vantrel needs an X11 desktop.</source>
        <translation>未设置 X 显示（DISPLAY 为空）；Vantrel 需要 X11 桌面。</translation>
    </message>
    <message>
        <source>Vantrel cannot open the X display &quot;%1&quot;.</source>
        <translation>Vantrel 无法打开 X 显示“%1”。</translation>
    </message>
    <message>
        <source>Log in to an X11 session (Xorg), not a Wayland one.</source>
        <translation>请登录 X11（Xorg）会话，而不是 Wayland 会话。</translation>
    </message>
    <message>
        <source>Make sure the X server offers XInput 2.2 (every current Xorg does).</source>
        <translation>请确认 X 服务器提供 XInput 2.2（当前的 Xorg 都提供）。</translation>
    </message>
</context>
<context>
    <name>X11ScreenSaverWatcher</name>
    <message>
        <source>The X server has no screen saver extension (MIT-SCREEN-SAVER).</source>
        <translation>X 服务器没有屏幕保护程序扩展（MIT-SCREEN-SAVER）。</translation>
    </message>
    <message>
        <source>Nothing is shown while the X11 screen saver or locker is on.</source>
        <translation>X11 屏幕保护程序或锁屏启用时不显示任何内容。</translation>
    </message>
</context>
</TS>
