<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>AboutSettingsView</name>
    <message>
        <source>Official Website</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Visit the official Vantrel website</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watch Vantrel videos on YouTube</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AddPresetTile</name>
    <message>
        <source>New Preset</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>Software Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asking %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantrel %1 is the newest version available.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A new version of Vantrel is available!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantrel %1 is available; you have %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantrel could not check for updates.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppearanceSettingsView</name>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Border Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shadow Radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Glow Radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Classic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gaming</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fade In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slide In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bounce</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Style Presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Basic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How keys appear on screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the font family</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color of the key labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color of the key background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Border Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color of the key border</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Effects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add drop shadow to keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shadow Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color of the drop shadow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Glow Effect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add glow effect to keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Glow Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color of the glow effect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset to default appearance settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DisplaySettingsView</name>
    <message>
        <source>Top Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top Center</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom Center</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected Displays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No displays detected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh the list of connected displays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset display settings to defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keystrokes will be shown on this display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keystrokes will be not shown on this display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit custom position</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EvdevCaptureBackend</name>
    <message>
        <source>Vantrel finds no input devices: the folder %1 does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You are in the input group, but this session began before you joined it: log out and back in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantrel cannot read the input devices in %1 (permission denied).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantrel finds no keyboard in %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Allow and give an administrator&apos;s password: Vantrel&apos;s input helper then reads the keyboard until Vantrel quits. If no password dialog appears, start your desktop&apos;s authentication agent and choose Allow again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Or add yourself to the input group: sudo usermod -aG input $USER. Every program you run can then read every key you type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log out and back in, so that the new group applies, then choose Check Again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantrel&apos;s input helper stopped twice; choose Allow to start it again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GeneralSettingsView</name>
    <message>
        <source>%1s</source>
        <extracomment>A duration in seconds, the number already in the locale&apos;s form: &quot;1.5s&quot;, &quot;1,5s&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln keys</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>App Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable Vantrel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show pressed keys on screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Launch at Login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Vantrel automatically when you log in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu Bar Icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the icon for the menu bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input Monitoring Access Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input Monitoring Access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Required to display your key presses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max Keys Displayed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset to default display settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key Types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show All Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display every key press</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Modifier Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Function Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F1, F2, F3, etc.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Special Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter, Tab, Delete, and Escape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset to default key type settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mouse Clicks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Mouse Clicks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display left and right clicks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset All Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset all settings to their default values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This action cannot be undone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset All Settings?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to reset all settings to their default values?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GlobalShortcutNames</name>
    <message>
        <source>Toggle Vantrel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Increase Key Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Decrease Key Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Position Customizer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toggle Mouse Clicks</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InputHelperProcess</name>
    <message>
        <source>The password dialog was closed; Vantrel cannot read the keyboard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No authentication agent answered; start your desktop&apos;s authentication agent, then choose Check Again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantrel&apos;s input helper stopped.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InputMonitoringSheet</name>
    <message>
        <source>Input Monitoring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable Input Monitoring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyShortcutsSettingsView</name>
    <message>
        <source>Global Shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This desktop lets you bind keys to Vantrel&apos;s commands in its keyboard settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyStylePreview</name>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyboardShortcutRecorder</name>
    <message>
        <source>Clear Shortcut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use at least one of Ctrl, Alt and Super, or a function key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is already used by another program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is already used by another shortcut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be used on this keyboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press Shortcut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MouseClickIndicatorView</name>
    <message>
        <source>Left mouse click</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right mouse click</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PermissionStatusView</name>
    <message>
        <source>Granted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not Granted</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Platform</name>
    <message>
        <source>VANTREL_OVERLAY must be &quot;x11&quot; or &quot;wayland&quot;, not &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no Wayland compositor with the layer shell answers (VANTREL_OVERLAY=wayland needs one)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no display for the overlays: the Wayland compositor offers no layer shell and DISPLAY is not set (no XWayland)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no X11 display: DISPLAY is not set (Vantrel needs an X11 desktop)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot open X11 display &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PositionCustomizerHeader</name>
    <message>
        <source>Drag to Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag the key display to your desired location. Click anywhere to save or press Escape to ignore changes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PositionCustomizerWindowController</name>
    <message>
        <source>Drag to Position</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SavePresetDialog</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preset Name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Vantrel Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Appearance settings are not available yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Displays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shortcut settings are not available yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TrayMenu</name>
    <message>
        <source>Increase Key Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Decrease Key Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Position Customizer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toggle Mouse Clicks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FAQ</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Videos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Support</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Social</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Website</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Suggest Idea</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Vantrel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop Vantrel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Vantrel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>The update server answered with HTTP error %1%2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update server did not answer within %1 seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not reach the update server (%1). Check that you are online and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update check failed: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update feed lists no versions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update feed is not an RSS feed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Utils</name>
    <message>
        <source>Version %1 (Build %2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VantrelApp</name>
    <message>
        <source>Start or stop showing keys.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make the key caps larger.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make the key caps smaller.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag the key row to a place of your own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show or hide mouse clicks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the settings window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Vantrel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usage: vantrel [option]

Shows the keys you press as key caps in a transparent overlay on each enabled
display, for presentations, teaching, streams and screencasts. It lives in the
system tray; starting it again opens the settings of the running Vantrel.

Options:
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remote control of the running Vantrel (bind these to keys of your desktop):</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantrel is not running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one option at a time, not &apos;%1&apos; (see vantrel --help)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; (see vantrel --help)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantrel is already running; its settings window opens.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another Vantrel holds the session but does not answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no D-Bus session bus; running alone, without remote control or the one-instance check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot listen to the keyboard: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantrel is switched off (&quot;Show pressed keys on screen&quot; is off).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the shortcut %1 of &quot;%2&quot; is already used by another program; it does nothing until that program lets it go</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no system tray found; opening the settings window instead of the tray menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantrel is showing pressed keys on screen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantrel stopped showing pressed keys.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>X11CaptureBackend</name>
    <message>
        <source>The X server has no XInput extension; Vantrel needs XInput 2.2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The X server did not answer the XInput version query.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The X server offers XInput %1.%2; Vantrel needs XInput 2.2 or newer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No X display is set (DISPLAY is empty); Vantrel needs an X11 desktop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantrel cannot open the X display &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log in to an X11 session (Xorg), not a Wayland one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make sure the X server offers XInput 2.2 (every current Xorg does).</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
