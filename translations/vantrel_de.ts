<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AboutSettingsView</name>
    <message>
        <source>Official Website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Visit the official Vantrel website</source>
        <translation>Die Website von Vantrel besuchen</translation>
    </message>
    <message>
        <source>Watch Vantrel videos on YouTube</source>
        <translation>Vantrel-Videos auf YouTube ansehen</translation>
    </message>
</context>
<context>
    <name>AddPresetTile</name>
    <message>
        <source>New Preset</source>
        <translation>Neue Vorlage</translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>Software Update</source>
        <translation>Softwareaktualisierung</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Suche nach Updates …</translation>
    </message>
    <message>
        <source>Asking %1</source>
        <translation>Frage %1 an</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>Vantrel ist aktuell!</translation>
    </message>
    <message>
        <source>Vantrel %1 is the newest version available.</source>
        <translation>Vantrel %1 ist die neueste Version.</translation>
    </message>
    <message>
        <source>A new version of Vantrel is available!</source>
        <translation>Eine neue Version von Vantrel ist verfügbar!</translation>
    </message>
    <message>
        <source>Vantrel %1 is available; you have %2.</source>
        <translation>Vantrel %1 ist verfügbar; installiert ist %2.</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Vantrel could not check for updates.</source>
        <translation>Vantrel konnte nicht nach Updates suchen.</translation>
    </message>
</context>
<context>
    <name>AppearanceSettingsView</name>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Eckenradius</translation>
    </message>
    <message>
        <source>Border Width</source>
        <translation>Rahmenbreite</translation>
    </message>
    <message>
        <source>Shadow Radius</source>
        <translation>Schattenradius</translation>
    </message>
    <message>
        <source>Glow Radius</source>
        <translation>Leuchtradius</translation>
    </message>
    <message>
        <source>Modern</source>
        <translation>Modern</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Klassisch</translation>
    </message>
    <message>
        <source>Minimal</source>
        <translation>Minimal</translation>
    </message>
    <message>
        <source>Gaming</source>
        <translation>Gaming</translation>
    </message>
    <message>
        <source>Neon</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Fade In</source>
        <translation>Einblenden</translation>
    </message>
    <message>
        <source>Scale In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Slide In</source>
        <translation>Hereingleiten</translation>
    </message>
    <message>
        <source>Bounce</source>
        <translation>Federn</translation>
    </message>
    <message>
        <source>Style Presets</source>
        <translation>Stilvorlagen</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>Grundlagen</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>How keys appear on screen</source>
        <translation>Wie Tasten erscheinen</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Choose the font family</source>
        <translation>Schriftfamilie wählen</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Text Color</source>
        <translation>Textfarbe</translation>
    </message>
    <message>
        <source>Color of the key labels</source>
        <translation>Farbe der Tastenbeschriftung</translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <source>Color of the key background</source>
        <translation>Farbe des Tastenhintergrunds</translation>
    </message>
    <message>
        <source>Border Color</source>
        <translation>Rahmenfarbe</translation>
    </message>
    <message>
        <source>Color of the key border</source>
        <translation>Farbe des Tastenrahmens</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>Add drop shadow to keys</source>
        <translation>Tasten werfen einen Schatten</translation>
    </message>
    <message>
        <source>Shadow Color</source>
        <translation>Schattenfarbe</translation>
    </message>
    <message>
        <source>Color of the drop shadow</source>
        <translation>Farbe des Schattens</translation>
    </message>
    <message>
        <source>Glow Effect</source>
        <translation>Leuchteffekt</translation>
    </message>
    <message>
        <source>Add glow effect to keys</source>
        <translation>Tasten leuchten lassen</translation>
    </message>
    <message>
        <source>Glow Color</source>
        <translation>Leuchtfarbe</translation>
    </message>
    <message>
        <source>Color of the glow effect</source>
        <translation>Farbe des Leuchtens</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Reset to default appearance settings</source>
        <translation>Aussehen auf Standardwerte zurücksetzen</translation>
    </message>
</context>
<context>
    <name>AtSpiFocusWatcher</name>
    <message>
        <source>The accessibility bus (AT-SPI) is not running, so password fields cannot be recognised.</source>
        <translation>Der Barrierefreiheitsbus (AT-SPI) läuft nicht, daher lassen sich Passwortfelder nicht erkennen.</translation>
    </message>
    <message>
        <source>There is no session bus to find the accessibility bus on.</source>
        <translation>Es gibt keinen Sitzungsbus, über den sich der Barrierefreiheitsbus finden ließe.</translation>
    </message>
    <message>
        <source>Nothing is shown while a password field has the focus.</source>
        <translation>Nichts wird angezeigt, solange ein Passwortfeld den Fokus hat.</translation>
    </message>
</context>
<context>
    <name>DisplaySettingsView</name>
    <message>
        <source>Top Left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top Center</source>
        <translation>Oben Mitte</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom Center</source>
        <translation>Unten Mitte</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigene</translation>
    </message>
    <message>
        <source>Connected Displays</source>
        <translation>Angeschlossene Monitore</translation>
    </message>
    <message>
        <source>No displays detected</source>
        <translation>Keine Monitore gefunden</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Neu suchen</translation>
    </message>
    <message>
        <source>Refresh the list of connected displays</source>
        <translation>Liste der angeschlossenen Monitore aktualisieren</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Reset display settings to defaults</source>
        <translation>Monitoreinstellungen zurücksetzen</translation>
    </message>
    <message>
        <source>Keystrokes will be shown on this display</source>
        <translation>Tasten werden auf diesem Monitor gezeigt</translation>
    </message>
    <message>
        <source>Keystrokes will be not shown on this display</source>
        <translation>Tasten werden auf diesem Monitor nicht gezeigt</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Edit custom position</source>
        <translation>Eigene Position bearbeiten</translation>
    </message>
</context>
<context>
    <name>EvdevCaptureBackend</name>
    <message>
        <source>Vantrel finds no input devices: the folder %1 does not exist.</source>
        <translation>Vantrel findet keine Eingabegeräte: Der Ordner %1 existiert nicht.</translation>
    </message>
    <message>
        <source>You are in the input group, but this session began before you joined it: log out and back in.</source>
        <translation>Sie sind in der Gruppe input, aber diese Sitzung begann vorher: Melden Sie sich ab und wieder an.</translation>
    </message>
    <message>
        <source>Vantrel cannot read the input devices in %1 (permission denied).</source>
        <translation>Vantrel kann die Eingabegeräte in %1 nicht lesen (Zugriff verweigert).</translation>
    </message>
    <message>
        <source>Vantrel finds no keyboard in %1.</source>
        <translation>Vantrel findet keine Tastatur in %1.</translation>
    </message>
    <message>
        <source>Choose Allow and give an administrator&apos;s password: Vantrel&apos;s input helper then reads the keyboard until Vantrel quits. If no password dialog appears, start your desktop&apos;s authentication agent and choose Allow again.</source>
        <translation>Wählen Sie „Erlauben“ und geben Sie ein Administratorpasswort ein: Der Eingabehelfer von Vantrel liest dann die Tastatur, bis Vantrel beendet wird. Erscheint kein Passwortdialog, starten Sie den Authentifizierungsagenten Ihres Desktops und wählen Sie erneut „Erlauben“.</translation>
    </message>
    <message>
        <source>Or add yourself to the input group: sudo usermod -aG input $USER. Every program you run can then read every key you type.</source>
        <translation>Oder treten Sie der Gruppe input bei: sudo usermod -aG input $USER. Dann kann jedes Programm, das Sie starten, jede Ihrer Tasten lesen.</translation>
    </message>
    <message>
        <source>Log out and back in, so that the new group applies, then choose Check Again.</source>
        <translation>Melden Sie sich ab und wieder an, damit die Gruppe gilt, und wählen Sie dann „Erneut prüfen“.</translation>
    </message>
    <message>
        <source>Vantrel&apos;s input helper stopped twice; choose Allow to start it again.</source>
        <translation>Der Eingabehelfer von Vantrel wurde zweimal beendet; wählen Sie „Erlauben“, um ihn neu zu starten.</translation>
    </message>
</context>
<context>
    <name>GeneralSettingsView</name>
    <message>
        <source>%1s</source>
        <extracomment>A duration in seconds, the number already in the locale&apos;s form: &quot;1.5s&quot;, &quot;1,5s&quot;</extracomment>
        <translation>%1s</translation>
    </message>
    <message numerus="yes">
        <source>%Ln keys</source>
        <translation>
            <numerusform>%Ln Taste</numerusform>
            <numerusform>%Ln Tasten</numerusform>
        </translation>
    </message>
    <message>
        <source>App Settings</source>
        <translation>App-Einstellungen</translation>
    </message>
    <message>
        <source>Enable Vantrel</source>
        <translation>Vantrel aktivieren</translation>
    </message>
    <message>
        <source>Show pressed keys on screen</source>
        <translation>Gedrückte Tasten anzeigen</translation>
    </message>
    <message>
        <source>Launch at Login</source>
        <translation>Bei Anmeldung starten</translation>
    </message>
    <message>
        <source>Start Vantrel automatically when you log in</source>
        <translation>Vantrel bei der Anmeldung automatisch starten</translation>
    </message>
    <message>
        <source>Menu Bar Icon</source>
        <translation>Symbol im Panel</translation>
    </message>
    <message>
        <source>Choose the icon for the menu bar</source>
        <translation>Symbol für das Panel wählen</translation>
    </message>
    <message>
        <source>Input Monitoring Access Information</source>
        <translation>Informationen zum Tastaturzugriff</translation>
    </message>
    <message>
        <source>Input Monitoring Access</source>
        <translation>Tastaturzugriff</translation>
    </message>
    <message>
        <source>Required to display your key presses</source>
        <translation>Nötig, um Ihre Tasten anzuzeigen</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Display Duration</source>
        <translation>Anzeigedauer</translation>
    </message>
    <message>
        <source>Max Keys Displayed</source>
        <translation>Max. Anzahl Tasten</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Reset to default display settings</source>
        <translation>Anzeige auf Standardwerte zurücksetzen</translation>
    </message>
    <message>
        <source>Key Types</source>
        <translation>Tastenarten</translation>
    </message>
    <message>
        <source>Show All Keys</source>
        <translation>Alle Tasten zeigen</translation>
    </message>
    <message>
        <source>Display every key press</source>
        <translation>Jeden Tastendruck anzeigen</translation>
    </message>
    <message>
        <source>Show Modifier Keys</source>
        <translation>Modifikatortasten zeigen</translation>
    </message>
    <message>
        <source>Show Function Keys</source>
        <translation>Funktionstasten zeigen</translation>
    </message>
    <message>
        <source>F1, F2, F3, etc.</source>
        <translation>F1, F2, F3 usw.</translation>
    </message>
    <message>
        <source>Show Special Keys</source>
        <translation>Spezialtasten zeigen</translation>
    </message>
    <message>
        <source>Enter, Tab, Delete, and Escape</source>
        <translation>Eingabe, Tab, Entf und Esc</translation>
    </message>
    <message>
        <source>Reset to default key type settings</source>
        <translation>Tastenarten auf Standardwerte zurücksetzen</translation>
    </message>
    <message>
        <source>Mouse Clicks</source>
        <translation>Mausklicks</translation>
    </message>
    <message>
        <source>Show Mouse Clicks</source>
        <translation>Mausklicks zeigen</translation>
    </message>
    <message>
        <source>Display left and right clicks</source>
        <translation>Linke und rechte Klicks anzeigen</translation>
    </message>
    <message>
        <source>Reset All Settings</source>
        <translation>Alles zurücksetzen</translation>
    </message>
    <message>
        <source>Reset all settings to their default values</source>
        <translation>Alle Einstellungen auf Standardwerte zurücksetzen</translation>
    </message>
    <message>
        <source>This action cannot be undone</source>
        <translation>Dies kann nicht rückgängig gemacht werden</translation>
    </message>
    <message>
        <source>Reset All Settings?</source>
        <translation>Alle Einstellungen zurücksetzen?</translation>
    </message>
    <message>
        <source>Are you sure you want to reset all settings to their default values?</source>
        <translation>Möchten Sie wirklich alle Einstellungen auf die Standardwerte zurücksetzen?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>GlobalShortcutNames</name>
    <message>
        <source>Toggle Vantrel</source>
        <translation>Vantrel ein/aus</translation>
    </message>
    <message>
        <source>Increase Key Size</source>
        <translation>Tasten vergrößern</translation>
    </message>
    <message>
        <source>Decrease Key Size</source>
        <translation>Tasten verkleinern</translation>
    </message>
    <message>
        <source>Open Position Customizer</source>
        <translation>Position anpassen</translation>
    </message>
    <message>
        <source>Toggle Mouse Clicks</source>
        <translation>Mausklicks ein/aus</translation>
    </message>
</context>
<context>
    <name>InputHelperProcess</name>
    <message>
        <source>The password dialog was closed; Vantrel cannot read the keyboard.</source>
        <translation>Der Passwortdialog wurde geschlossen; Vantrel kann die Tastatur nicht lesen.</translation>
    </message>
    <message>
        <source>No authentication agent answered; start your desktop&apos;s authentication agent, then choose Check Again.</source>
        <translation>Kein Authentifizierungsagent antwortet; starten Sie den Ihres Desktops und wählen Sie dann „Erneut prüfen“.</translation>
    </message>
    <message>
        <source>Vantrel&apos;s input helper stopped.</source>
        <translation>Der Eingabehelfer von Vantrel wurde beendet.</translation>
    </message>
</context>
<context>
    <name>InputMonitoringSheet</name>
    <message>
        <source>Input Monitoring</source>
        <translation>Tastaturzugriff</translation>
    </message>
    <message>
        <source>Enable Input Monitoring</source>
        <translation>Tastaturzugriff erlauben</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>Erneut prüfen</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Erlauben</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Datenschutz</translation>
    </message>
    <message>
        <source>Not covered: a password typed into a terminal (sudo, ssh) has no field to recognise, so it shows like any other typing.</source>
        <translation>Nicht abgedeckt: Ein Passwort, das in einem Terminal eingegeben wird (sudo, ssh), hat kein erkennbares Feld und erscheint wie jede andere Eingabe.</translation>
    </message>
    <message>
        <source>%1: on.</source>
        <translation>%1: an.</translation>
    </message>
    <message>
        <source>%1: off.</source>
        <translation>%1: aus.</translation>
    </message>
    <message>
        <source>Keys are not hidden anywhere: no protection is running.</source>
        <translation>Tasten werden nirgends ausgeblendet: Kein Schutz ist aktiv.</translation>
    </message>
</context>
<context>
    <name>KeyShortcutsSettingsView</name>
    <message>
        <source>Global Shortcuts</source>
        <translation>Globale Tastenkürzel</translation>
    </message>
    <message>
        <source>This desktop lets you bind keys to Vantrel&apos;s commands in its keyboard settings</source>
        <translation>Auf diesem Desktop legen Sie Tastenkürzel für Vantrels Befehle in den Tastatureinstellungen fest</translation>
    </message>
</context>
<context>
    <name>KeyStylePreview</name>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>KeyboardShortcutRecorder</name>
    <message>
        <source>Clear Shortcut</source>
        <translation>Tastenkürzel löschen</translation>
    </message>
    <message>
        <source>Use at least one of Ctrl, Alt and Super, or a function key</source>
        <translation>Mindestens Strg, Alt oder Super verwenden, oder eine F-Taste</translation>
    </message>
    <message>
        <source>%1 is already used by another program</source>
        <translation>%1 wird schon von einem anderen Programm verwendet</translation>
    </message>
    <message>
        <source>%1 is already used by another shortcut</source>
        <translation>%1 ist schon einem anderen Tastenkürzel zugewiesen</translation>
    </message>
    <message>
        <source>%1 cannot be used on this keyboard</source>
        <translation>%1 ist auf dieser Tastatur nicht möglich</translation>
    </message>
    <message>
        <source>Press Shortcut</source>
        <translation>Tastenkürzel drücken</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>Tastenkürzel aufnehmen</translation>
    </message>
</context>
<context>
    <name>LogindLockWatcher</name>
    <message>
        <source>There is no system bus to ask the login manager (logind).</source>
        <translation>Es gibt keinen Systembus, um den Anmeldedienst (logind) zu fragen.</translation>
    </message>
    <message>
        <source>The login manager (logind) does not answer.</source>
        <translation>Der Anmeldedienst (logind) antwortet nicht.</translation>
    </message>
    <message>
        <source>The login manager (logind) knows no session of yours.</source>
        <translation>Der Anmeldedienst (logind) kennt keine Sitzung von Ihnen.</translation>
    </message>
    <message>
        <source>Nothing is shown while the login manager says this session is locked.</source>
        <translation>Nichts wird angezeigt, solange der Anmeldedienst diese Sitzung als gesperrt meldet.</translation>
    </message>
</context>
<context>
    <name>MouseClickIndicatorView</name>
    <message>
        <source>Left mouse click</source>
        <translation>Linksklick</translation>
    </message>
    <message>
        <source>Right mouse click</source>
        <translation>Rechtsklick</translation>
    </message>
</context>
<context>
    <name>PermissionStatusView</name>
    <message>
        <source>Granted</source>
        <translation>Erteilt</translation>
    </message>
    <message>
        <source>Not Granted</source>
        <translation>Nicht erteilt</translation>
    </message>
</context>
<context>
    <name>Platform</name>
    <message>
        <source>VANTREL_OVERLAY must be &quot;x11&quot; or &quot;wayland&quot;, not &quot;%1&quot;</source>
        <translation>VANTREL_OVERLAY muss „x11“ oder „wayland“ sein, nicht „%1“</translation>
    </message>
    <message>
        <source>no Wayland compositor with the layer shell answers (VANTREL_OVERLAY=wayland needs one)</source>
        <translation>kein Wayland-Compositor mit Layer-Shell antwortet (VANTREL_OVERLAY=wayland braucht einen)</translation>
    </message>
    <message>
        <source>no display for the overlays: the Wayland compositor offers no layer shell and DISPLAY is not set (no XWayland)</source>
        <translation>keine Anzeige für die Overlays: Der Wayland-Compositor bietet keine Layer-Shell und DISPLAY ist nicht gesetzt (kein XWayland)</translation>
    </message>
    <message>
        <source>no X11 display: DISPLAY is not set (Vantrel needs an X11 desktop)</source>
        <translation>keine X11-Anzeige: DISPLAY ist nicht gesetzt (Vantrel braucht einen X11-Desktop)</translation>
    </message>
    <message>
        <source>cannot open X11 display &quot;%1&quot;</source>
        <translation>X11-Anzeige „%1“ lässt sich nicht öffnen</translation>
    </message>
</context>
<context>
    <name>PositionCustomizerHeader</name>
    <message>
        <source>Drag to Position</source>
        <translation>Zum Platzieren ziehen</translation>
    </message>
    <message>
        <source>Drag the key display to your desired location. Click anywhere to save or press Escape to ignore changes.</source>
        <translation>Ziehen Sie die Tastenanzeige an die gewünschte Stelle. Klicken Sie irgendwo zum Sichern oder drücken Sie Esc zum Verwerfen.</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>PositionCustomizerWindowController</name>
    <message>
        <source>Drag to Position</source>
        <translation>Zum Platzieren ziehen</translation>
    </message>
</context>
<context>
    <name>SavePresetDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Vorlage sichern</translation>
    </message>
    <message>
        <source>Preset Name</source>
        <translation>Name der Vorlage</translation>
    </message>
</context>
<context>
    <name>ScreenSaverLockWatcher</name>
    <message>
        <source>There is no session bus to hear the screen locker on.</source>
        <translation>Es gibt keinen Sitzungsbus, auf dem die Bildschirmsperre zu hören wäre.</translation>
    </message>
    <message>
        <source>Nothing is shown while the screen locker is active.</source>
        <translation>Nichts wird angezeigt, solange die Bildschirmsperre aktiv ist.</translation>
    </message>
</context>
<context>
    <name>Secrecy</name>
    <message>
        <source>Locked session</source>
        <translation>Gesperrte Sitzung</translation>
    </message>
    <message>
        <source>Screen locker</source>
        <translation>Bildschirmsperre</translation>
    </message>
    <message>
        <source>X11 screen saver</source>
        <translation>X11-Bildschirmschoner</translation>
    </message>
    <message>
        <source>Password fields</source>
        <translation>Passwortfelder</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Vantrel Settings</source>
        <translation>Vantrel-Einstellungen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Appearance settings are not available yet.</source>
        <translation>Einstellungen zum Aussehen sind noch nicht verfügbar.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Displays</source>
        <translation>Monitore</translation>
    </message>
    <message>
        <source>Shortcut settings are not available yet.</source>
        <translation>Tastenkürzel-Einstellungen sind noch nicht verfügbar.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
</context>
<context>
    <name>TrayMenu</name>
    <message>
        <source>Increase Key Size</source>
        <translation>Tasten vergrößern</translation>
    </message>
    <message>
        <source>Decrease Key Size</source>
        <translation>Tasten verkleinern</translation>
    </message>
    <message>
        <source>Open Position Customizer</source>
        <translation>Position anpassen</translation>
    </message>
    <message>
        <source>Toggle Mouse Clicks</source>
        <translation>Mausklicks ein/aus</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>FAQ</source>
        <translation>FAQ</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Videos</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Support</translation>
    </message>
    <message>
        <source>Social</source>
        <translation>Soziale Netzwerke</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>Nach Updates suchen …</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Suggest Idea</source>
        <translation>Idee vorschlagen</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Weitere Apps</translation>
    </message>
    <message>
        <source>Quit Vantrel</source>
        <translation>Vantrel beenden</translation>
    </message>
    <message>
        <source>Stop Vantrel</source>
        <translation>Vantrel stoppen</translation>
    </message>
    <message>
        <source>Start Vantrel</source>
        <translation>Vantrel starten</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>The update server answered with HTTP error %1%2.</source>
        <translation>Der Update-Server antwortete mit HTTP-Fehler %1%2.</translation>
    </message>
    <message>
        <source>The update server did not answer within %1 seconds.</source>
        <translation>Der Update-Server antwortete nicht innerhalb von %1 Sekunden.</translation>
    </message>
    <message>
        <source>Could not reach the update server (%1). Check that you are online and try again.</source>
        <translation>Der Update-Server ist nicht erreichbar (%1). Prüfen Sie die Internetverbindung und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The update check failed: %1.</source>
        <translation>Die Update-Suche ist fehlgeschlagen: %1.</translation>
    </message>
    <message>
        <source>The update feed lists no versions.</source>
        <translation>Der Update-Feed nennt keine Versionen.</translation>
    </message>
    <message>
        <source>The update feed is not an RSS feed.</source>
        <translation>Der Update-Feed ist kein RSS-Feed.</translation>
    </message>
</context>
<context>
    <name>Utils</name>
    <message>
        <source>Version %1 (Build %2)</source>
        <translation>Version %1 (Build %2)</translation>
    </message>
</context>
<context>
    <name>VantrelApp</name>
    <message>
        <source>Start or stop showing keys.</source>
        <translation>Tastenanzeige starten oder stoppen.</translation>
    </message>
    <message>
        <source>Make the key caps larger.</source>
        <translation>Tasten größer machen.</translation>
    </message>
    <message>
        <source>Make the key caps smaller.</source>
        <translation>Tasten kleiner machen.</translation>
    </message>
    <message>
        <source>Drag the key row to a place of your own.</source>
        <translation>Tastenreihe an eine eigene Stelle ziehen.</translation>
    </message>
    <message>
        <source>Show or hide mouse clicks.</source>
        <translation>Mausklicks zeigen oder ausblenden.</translation>
    </message>
    <message>
        <source>Open the settings window.</source>
        <translation>Einstellungsfenster öffnen.</translation>
    </message>
    <message>
        <source>Quit Vantrel.</source>
        <translation>Vantrel beenden.</translation>
    </message>
    <message>
        <source>Usage: vantrel [option]

Shows the keys you press as key caps in a transparent overlay on each enabled
display, for presentations, teaching, streams and screencasts. It lives in the
system tray; starting it again opens the settings of the running Vantrel.

Options:
</source>
        <translation>Aufruf: vantrel [Option]

Zeigt die gedrückten Tasten in einem durchsichtigen Overlay auf jedem aktivierten
Monitor, für Vorträge, Unterricht, Streams und Screencasts. Vantrel lebt im
Infobereich; ein erneuter Start öffnet die Einstellungen des laufenden Vantrel.

Optionen:
</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>Diese Hilfe zeigen und beenden.</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>Version zeigen und beenden.</translation>
    </message>
    <message>
        <source>Remote control of the running Vantrel (bind these to keys of your desktop):</source>
        <translation>Fernsteuerung des laufenden Vantrel (als Tastenkürzel im Desktop festlegen):</translation>
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
        <translation>Sitzungen:
  X11      Tasten vom X-Server; Overlays sind X11-Fenster.
  Wayland  Tasten von den Eingabegeräten (/dev/input oder der Ordner aus
           VANTREL_INPUT_DIR), benannt nach der Tastaturbelegung des Compositors;
           Overlays sind Layer-Surfaces, wo der Compositor die Layer-Shell bietet,
           sonst X11-Fenster über XWayland. VANTREL_OVERLAY=wayland oder
           VANTREL_OVERLAY=x11 wählt eines davon. Zum Lesen der Geräte braucht es
           die Gruppe input oder „Erlauben“ in den Einstellungen (ein
           Administratorpasswort startet vantrel-input-helper über pkexec).
</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>Einstellungen: %1</translation>
    </message>
    <message>
        <source>Vantrel is not running</source>
        <translation>Vantrel läuft nicht</translation>
    </message>
    <message>
        <source>one option at a time, not &apos;%1&apos; (see vantrel --help)</source>
        <translation>nur eine Option auf einmal, nicht „%1“ (siehe vantrel --help)</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; (see vantrel --help)</source>
        <translation>unbekannte Option „%1“ (siehe vantrel --help)</translation>
    </message>
    <message>
        <source>Vantrel is already running; its settings window opens.</source>
        <translation>Vantrel läuft bereits; sein Einstellungsfenster öffnet sich.</translation>
    </message>
    <message>
        <source>another Vantrel holds the session but does not answer</source>
        <translation>ein anderes Vantrel belegt die Sitzung, antwortet aber nicht</translation>
    </message>
    <message>
        <source>no D-Bus session bus; running alone, without remote control or the one-instance check</source>
        <translation>kein D-Bus-Sitzungsbus; Vantrel läuft allein, ohne Fernsteuerung und ohne Prüfung auf eine zweite Instanz</translation>
    </message>
    <message>
        <source>cannot listen to the keyboard: %1</source>
        <translation>Tastatur kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Vantrel is switched off (&quot;Show pressed keys on screen&quot; is off).</source>
        <translation>Vantrel ist ausgeschaltet („Gedrückte Tasten anzeigen“ ist aus).</translation>
    </message>
    <message>
        <source>the shortcut %1 of &quot;%2&quot; is already used by another program; it does nothing until that program lets it go</source>
        <translation>das Tastenkürzel %1 für „%2“ wird schon von einem anderen Programm verwendet; es wirkt erst, wenn jenes es freigibt</translation>
    </message>
    <message>
        <source>no system tray found; opening the settings window instead of the tray menu</source>
        <translation>kein Infobereich gefunden; statt des Menüs öffnet sich das Einstellungsfenster</translation>
    </message>
    <message>
        <source>Vantrel is showing pressed keys on screen.</source>
        <translation>Vantrel zeigt gedrückte Tasten an.</translation>
    </message>
    <message>
        <source>Vantrel stopped showing pressed keys.</source>
        <translation>Vantrel zeigt keine Tasten mehr an.</translation>
    </message>
    <message>
        <source>Privacy: nothing is shown, keys, modifiers and clicks alike, while the session is
locked (logind, the screen locker&apos;s signals, the X11 screen saver) or while a
password field has the focus (followed on the accessibility bus, AT-SPI2).
Settings &gt; General &gt; Input Monitoring lists which protections are on.
Not covered: a password typed into a terminal (sudo, ssh) has no field to
detect; switch Vantrel off first (vantrel --toggle).
</source>
        <translation>Datenschutz: Nichts wird angezeigt, weder Tasten noch Modifikatortasten noch
Klicks, solange die Sitzung gesperrt ist (logind, die Signale der
Bildschirmsperre, der X11-Bildschirmschoner) oder ein Passwortfeld den Fokus
hat (verfolgt über den Barrierefreiheitsbus, AT-SPI2). Welche Schutzfunktionen
an sind, zeigt Einstellungen &gt; Allgemein &gt; Tastaturzugriff.
Nicht abgedeckt: Ein Passwort in einem Terminal (sudo, ssh) hat kein Feld, das
sich erkennen ließe; schalten Sie Vantrel vorher aus (vantrel --toggle).
</translation>
    </message>
</context>
<context>
    <name>X11CaptureBackend</name>
    <message>
        <source>The X server has no XInput extension; Vantrel needs XInput 2.2.</source>
        <translation>Der X-Server hat keine XInput-Erweiterung; Vantrel braucht XInput 2.2.</translation>
    </message>
    <message>
        <source>The X server did not answer the XInput version query.</source>
        <translation>Der X-Server beantwortete die XInput-Versionsabfrage nicht.</translation>
    </message>
    <message>
        <source>The X server offers XInput %1.%2; Vantrel needs XInput 2.2 or newer.</source>
        <translation>Der X-Server bietet XInput %1.%2; Vantrel braucht XInput 2.2 oder neuer.</translation>
    </message>
    <message>
        <source>No X display is set (DISPLAY is empty); Vantrel needs an X11 desktop.</source>
        <translation>Keine X-Anzeige gesetzt (DISPLAY ist leer); Vantrel braucht einen X11-Desktop.</translation>
    </message>
    <message>
        <source>Vantrel cannot open the X display &quot;%1&quot;.</source>
        <translation>Vantrel kann die X-Anzeige „%1“ nicht öffnen.</translation>
    </message>
    <message>
        <source>Log in to an X11 session (Xorg), not a Wayland one.</source>
        <translation>Melden Sie sich in einer X11-Sitzung (Xorg) an, nicht in einer Wayland-Sitzung.</translation>
    </message>
    <message>
        <source>Make sure the X server offers XInput 2.2 (every current Xorg does).</source>
        <translation>Der X-Server muss XInput 2.2 bieten (jedes aktuelle Xorg tut das).</translation>
    </message>
</context>
<context>
    <name>X11ScreenSaverWatcher</name>
    <message>
        <source>The X server has no screen saver extension (MIT-SCREEN-SAVER).</source>
        <translation>Der X-Server hat keine Bildschirmschoner-Erweiterung (MIT-SCREEN-SAVER).</translation>
    </message>
    <message>
        <source>Nothing is shown while the X11 screen saver or locker is on.</source>
        <translation>Nichts wird angezeigt, solange der X11-Bildschirmschoner oder die Sperre an ist.</translation>
    </message>
</context>
</TS>
