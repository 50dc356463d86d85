<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>AboutSettingsView</name>
    <message>
        <source>Official Website</source>
        <translation>Sito ufficiale</translation>
    </message>
    <message>
        <source>Visit the official Vantrel website</source>
        <translation>Visita il sito ufficiale di Vantrel</translation>
    </message>
    <message>
        <source>Watch Vantrel videos on YouTube</source>
        <translation>Guarda i video di Vantrel su YouTube</translation>
    </message>
</context>
<context>
    <name>AddPresetTile</name>
    <message>
        <source>New Preset</source>
        <translation>Nuovo stile</translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>Software Update</source>
        <translation>Aggiornamento</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Ricerca aggiornamenti…</translation>
    </message>
    <message>
        <source>Asking %1</source>
        <translation>Richiesta a %1</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>Vantrel è aggiornato!</translation>
    </message>
    <message>
        <source>Vantrel %1 is the newest version available.</source>
        <translation>Vantrel %1 è la versione più recente.</translation>
    </message>
    <message>
        <source>A new version of Vantrel is available!</source>
        <translation>È disponibile una nuova versione di Vantrel!</translation>
    </message>
    <message>
        <source>Vantrel %1 is available; you have %2.</source>
        <translation>Vantrel %1 è disponibile; hai la %2.</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Scarica</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Non ora</translation>
    </message>
    <message>
        <source>Vantrel could not check for updates.</source>
        <translation>Vantrel non è riuscito a cercare aggiornamenti.</translation>
    </message>
</context>
<context>
    <name>AppearanceSettingsView</name>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Spaziatura</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacità</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raggio angoli</translation>
    </message>
    <message>
        <source>Border Width</source>
        <translation>Spessore bordo</translation>
    </message>
    <message>
        <source>Shadow Radius</source>
        <translation>Raggio ombra</translation>
    </message>
    <message>
        <source>Glow Radius</source>
        <translation>Raggio bagliore</translation>
    </message>
    <message>
        <source>Modern</source>
        <translation>Moderno</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Classico</translation>
    </message>
    <message>
        <source>Minimal</source>
        <translation>Minimale</translation>
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
        <translation>Nessuna</translation>
    </message>
    <message>
        <source>Fade In</source>
        <translation>Dissolvenza</translation>
    </message>
    <message>
        <source>Scale In</source>
        <translation>Ingrandimento</translation>
    </message>
    <message>
        <source>Slide In</source>
        <translation>Scorrimento</translation>
    </message>
    <message>
        <source>Bounce</source>
        <translation>Rimbalzo</translation>
    </message>
    <message>
        <source>Style Presets</source>
        <translation>Stili predefiniti</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>Base</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animazione</translation>
    </message>
    <message>
        <source>How keys appear on screen</source>
        <translation>Come appaiono i tasti</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Carattere</translation>
    </message>
    <message>
        <source>Choose the font family</source>
        <translation>Scegli il carattere</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Colori</translation>
    </message>
    <message>
        <source>Text Color</source>
        <translation>Colore testo</translation>
    </message>
    <message>
        <source>Color of the key labels</source>
        <translation>Colore delle etichette dei tasti</translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation>Colore sfondo</translation>
    </message>
    <message>
        <source>Color of the key background</source>
        <translation>Colore dello sfondo dei tasti</translation>
    </message>
    <message>
        <source>Border Color</source>
        <translation>Colore bordo</translation>
    </message>
    <message>
        <source>Color of the key border</source>
        <translation>Colore del bordo dei tasti</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effetti</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Ombra</translation>
    </message>
    <message>
        <source>Add drop shadow to keys</source>
        <translation>Aggiungi un’ombra ai tasti</translation>
    </message>
    <message>
        <source>Shadow Color</source>
        <translation>Colore ombra</translation>
    </message>
    <message>
        <source>Color of the drop shadow</source>
        <translation>Colore dell’ombra</translation>
    </message>
    <message>
        <source>Glow Effect</source>
        <translation>Effetto bagliore</translation>
    </message>
    <message>
        <source>Add glow effect to keys</source>
        <translation>Aggiungi un bagliore ai tasti</translation>
    </message>
    <message>
        <source>Glow Color</source>
        <translation>Colore bagliore</translation>
    </message>
    <message>
        <source>Color of the glow effect</source>
        <translation>Colore dell’effetto bagliore</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Reset to default appearance settings</source>
        <translation>Ripristina l’aspetto predefinito</translation>
    </message>
</context>
<context>
    <name>AtSpiFocusWatcher</name>
    <message>
        <source>The accessibility bus (AT-SPI) is not running, so password fields cannot be recognised.</source>
        <translation>Il bus di accessibilità (AT-SPI) non è attivo, quindi i campi password non possono essere riconosciuti.</translation>
    </message>
    <message>
        <source>There is no session bus to find the accessibility bus on.</source>
        <translation>Non c’è un bus di sessione su cui trovare il bus di accessibilità.</translation>
    </message>
    <message>
        <source>Nothing is shown while a password field has the focus.</source>
        <translation>Non viene mostrato nulla mentre un campo password ha il focus.</translation>
    </message>
</context>
<context>
    <name>DisplaySettingsView</name>
    <message>
        <source>Top Left</source>
        <translation>In alto a sinistra</translation>
    </message>
    <message>
        <source>Top Center</source>
        <translation>In alto al centro</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>In alto a destra</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>In basso a sinistra</translation>
    </message>
    <message>
        <source>Bottom Center</source>
        <translation>In basso al centro</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>In basso a destra</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizzata</translation>
    </message>
    <message>
        <source>Connected Displays</source>
        <translation>Schermi collegati</translation>
    </message>
    <message>
        <source>No displays detected</source>
        <translation>Nessuno schermo rilevato</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>Refresh the list of connected displays</source>
        <translation>Aggiorna l’elenco degli schermi collegati</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Reset display settings to defaults</source>
        <translation>Ripristina le impostazioni degli schermi</translation>
    </message>
    <message>
        <source>Keystrokes will be shown on this display</source>
        <translation>I tasti vengono mostrati su questo schermo</translation>
    </message>
    <message>
        <source>Keystrokes will be not shown on this display</source>
        <translation>I tasti non vengono mostrati su questo schermo</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Edit custom position</source>
        <translation>Modifica la posizione personalizzata</translation>
    </message>
</context>
<context>
    <name>EvdevCaptureBackend</name>
    <message>
        <source>Vantrel finds no input devices: the folder %1 does not exist.</source>
        <translation>Vantrel non trova dispositivi di input: la cartella %1 non esiste.</translation>
    </message>
    <message>
        <source>You are in the input group, but this session began before you joined it: log out and back in.</source>
        <translation>Sei nel gruppo input, ma questa sessione è iniziata prima: esci e rientra.</translation>
    </message>
    <message>
        <source>Vantrel cannot read the input devices in %1 (permission denied).</source>
        <translation>Vantrel non può leggere i dispositivi di input in %1 (permesso negato).</translation>
    </message>
    <message>
        <source>Vantrel finds no keyboard in %1.</source>
        <translation>Vantrel non trova nessuna tastiera in %1.</translation>
    </message>
    <message>
        <source>Choose Allow and give an administrator&apos;s password: Vantrel&apos;s input helper then reads the keyboard until Vantrel quits. If no password dialog appears, start your desktop&apos;s authentication agent and choose Allow again.</source>
        <translation>Scegli «Consenti» e inserisci una password di amministratore: l’helper di input di Vantrel leggerà la tastiera finché Vantrel non si chiude. Se non compare alcuna finestra per la password, avvia l’agente di autenticazione del desktop e scegli di nuovo «Consenti».</translation>
    </message>
    <message>
        <source>Or add yourself to the input group: sudo usermod -aG input $USER. Every program you run can then read every key you type.</source>
        <translation>Oppure aggiungiti al gruppo input: sudo usermod -aG input $USER. Ogni programma che avvii potrà allora leggere ogni tasto che premi.</translation>
    </message>
    <message>
        <source>Log out and back in, so that the new group applies, then choose Check Again.</source>
        <translation>Esci e rientra perché il gruppo abbia effetto, poi scegli «Verifica di nuovo».</translation>
    </message>
    <message>
        <source>Vantrel&apos;s input helper stopped twice; choose Allow to start it again.</source>
        <translation>L’helper di input di Vantrel si è fermato due volte; scegli «Consenti» per riavviarlo.</translation>
    </message>
</context>
<context>
    <name>GeneralSettingsView</name>
    <message>
        <source>%1s</source>
        <extracomment>A duration in seconds, the number already in the locale&apos;s form: &quot;1.5s&quot;, &quot;1,5s&quot;</extracomment>
        <translation>%1 s</translation>
    </message>
    <message numerus="yes">
        <source>%Ln keys</source>
        <translation>
            <numerusform>%Ln tasto</numerusform>
            <numerusform>%Ln tasti</numerusform>
        </translation>
    </message>
    <message>
        <source>App Settings</source>
        <translation>App</translation>
    </message>
    <message>
        <source>Enable Vantrel</source>
        <translation>Attiva Vantrel</translation>
    </message>
    <message>
        <source>Show pressed keys on screen</source>
        <translation>Mostra i tasti premuti sullo schermo</translation>
    </message>
    <message>
        <source>Launch at Login</source>
        <translation>Apri al login</translation>
    </message>
    <message>
        <source>Start Vantrel automatically when you log in</source>
        <translation>Avvia Vantrel automaticamente all’accesso</translation>
    </message>
    <message>
        <source>Menu Bar Icon</source>
        <translation>Icona nella barra</translation>
    </message>
    <message>
        <source>Choose the icon for the menu bar</source>
        <translation>Scegli l’icona della barra dei menu</translation>
    </message>
    <message>
        <source>Input Monitoring Access Information</source>
        <translation>Informazioni sull’accesso alla tastiera</translation>
    </message>
    <message>
        <source>Input Monitoring Access</source>
        <translation>Accesso alla tastiera</translation>
    </message>
    <message>
        <source>Required to display your key presses</source>
        <translation>Necessario per mostrare i tasti premuti</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Visualizzazione</translation>
    </message>
    <message>
        <source>Display Duration</source>
        <translation>Durata di visualizzazione</translation>
    </message>
    <message>
        <source>Max Keys Displayed</source>
        <translation>Tasti mostrati (max)</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Reset to default display settings</source>
        <translation>Ripristina la visualizzazione predefinita</translation>
    </message>
    <message>
        <source>Key Types</source>
        <translation>Tipi di tasti</translation>
    </message>
    <message>
        <source>Show All Keys</source>
        <translation>Mostra tutti i tasti</translation>
    </message>
    <message>
        <source>Display every key press</source>
        <translation>Mostra ogni tasto premuto</translation>
    </message>
    <message>
        <source>Show Modifier Keys</source>
        <translation>Mostra tasti modificatori</translation>
    </message>
    <message>
        <source>Show Function Keys</source>
        <translation>Mostra tasti funzione</translation>
    </message>
    <message>
        <source>F1, F2, F3, etc.</source>
        <translation>F1, F2, F3 ecc.</translation>
    </message>
    <message>
        <source>Show Special Keys</source>
        <translation>Mostra tasti speciali</translation>
    </message>
    <message>
        <source>Enter, Tab, Delete, and Escape</source>
        <translation>Invio, Tab, Canc ed Esc</translation>
    </message>
    <message>
        <source>Reset to default key type settings</source>
        <translation>Ripristina i tipi di tasti predefiniti</translation>
    </message>
    <message>
        <source>Mouse Clicks</source>
        <translation>Clic del mouse</translation>
    </message>
    <message>
        <source>Show Mouse Clicks</source>
        <translation>Mostra i clic</translation>
    </message>
    <message>
        <source>Display left and right clicks</source>
        <translation>Mostra i clic sinistro e destro</translation>
    </message>
    <message>
        <source>Reset All Settings</source>
        <translation>Ripristina tutto</translation>
    </message>
    <message>
        <source>Reset all settings to their default values</source>
        <translation>Ripristina tutte le impostazioni predefinite</translation>
    </message>
    <message>
        <source>This action cannot be undone</source>
        <translation>L’operazione non può essere annullata</translation>
    </message>
    <message>
        <source>Reset All Settings?</source>
        <translation>Ripristinare tutte le impostazioni?</translation>
    </message>
    <message>
        <source>Are you sure you want to reset all settings to their default values?</source>
        <translation>Vuoi davvero ripristinare tutte le impostazioni ai valori predefiniti?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>GlobalShortcutNames</name>
    <message>
        <source>Toggle Vantrel</source>
        <translation>Attiva/disattiva Vantrel</translation>
    </message>
    <message>
        <source>Increase Key Size</source>
        <translation>Ingrandisci i tasti</translation>
    </message>
    <message>
        <source>Decrease Key Size</source>
        <translation>Rimpicciolisci i tasti</translation>
    </message>
    <message>
        <source>Open Position Customizer</source>
        <translation>Personalizza la posizione</translation>
    </message>
    <message>
        <source>Toggle Mouse Clicks</source>
        <translation>Mostra/nascondi i clic</translation>
    </message>
</context>
<context>
    <name>InputHelperProcess</name>
    <message>
        <source>The password dialog was closed; Vantrel cannot read the keyboard.</source>
        <translation>La finestra della password è stata chiusa; Vantrel non può leggere la tastiera.</translation>
    </message>
    <message>
        <source>No authentication agent answered; start your desktop&apos;s authentication agent, then choose Check Again.</source>
        <translation>Nessun agente di autenticazione risponde; avvia quello del desktop, poi scegli «Verifica di nuovo».</translation>
    </message>
    <message>
        <source>Vantrel&apos;s input helper stopped.</source>
        <translation>L’helper di input di Vantrel si è fermato.</translation>
    </message>
</context>
<context>
    <name>InputMonitoringSheet</name>
    <message>
        <source>Input Monitoring</source>
        <translation>Accesso alla tastiera</translation>
    </message>
    <message>
        <source>Enable Input Monitoring</source>
        <translation>Consenti l’accesso alla tastiera</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>Verifica di nuovo</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Consenti</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Privacy</translation>
    </message>
    <message>
        <source>Not covered: a password typed into a terminal (sudo, ssh) has no field to recognise, so it shows like any other typing.</source>
        <translation>Non coperto: una password digitata in un terminale (sudo, ssh) non ha un campo da riconoscere, quindi appare come qualsiasi altro testo.</translation>
    </message>
    <message>
        <source>%1: on.</source>
        <translation>%1: in funzione.</translation>
    </message>
    <message>
        <source>%1: off.</source>
        <translation>%1: non in funzione.</translation>
    </message>
    <message>
        <source>Keys are not hidden anywhere: no protection is running.</source>
        <translation>Nessun tasto viene nascosto: nessuna protezione è in funzione.</translation>
    </message>
</context>
<context>
    <name>KeyShortcutsSettingsView</name>
    <message>
        <source>Global Shortcuts</source>
        <translation>Scorciatoie globali</translation>
    </message>
    <message>
        <source>This desktop lets you bind keys to Vantrel&apos;s commands in its keyboard settings</source>
        <translation>Su questo desktop, assegna le scorciatoie ai comandi di Vantrel nelle impostazioni della tastiera</translation>
    </message>
</context>
<context>
    <name>KeyStylePreview</name>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
</context>
<context>
    <name>KeyboardShortcutRecorder</name>
    <message>
        <source>Clear Shortcut</source>
        <translation>Cancella la scorciatoia</translation>
    </message>
    <message>
        <source>Use at least one of Ctrl, Alt and Super, or a function key</source>
        <translation>Usa almeno Ctrl, Alt o Super, oppure un tasto funzione</translation>
    </message>
    <message>
        <source>%1 is already used by another program</source>
        <translation>%1 è già usata da un altro programma</translation>
    </message>
    <message>
        <source>%1 is already used by another shortcut</source>
        <translation>%1 è già assegnata a un’altra scorciatoia</translation>
    </message>
    <message>
        <source>%1 cannot be used on this keyboard</source>
        <translation>%1 non è utilizzabile su questa tastiera</translation>
    </message>
    <message>
        <source>Press Shortcut</source>
        <translation>Premi la scorciatoia</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>Registra</translation>
    </message>
</context>
<context>
    <name>LogindLockWatcher</name>
    <message>
        <source>There is no system bus to ask the login manager (logind).</source>
        <translation>Non c’è un bus di sistema per interrogare il gestore degli accessi (logind).</translation>
    </message>
    <message>
        <source>The login manager (logind) does not answer.</source>
        <translation>Il gestore degli accessi (logind) non risponde.</translation>
    </message>
    <message>
        <source>The login manager (logind) knows no session of yours.</source>
        <translation>Il gestore degli accessi (logind) non conosce alcuna tua sessione.</translation>
    </message>
    <message>
        <source>Nothing is shown while the login manager says this session is locked.</source>
        <translation>Non viene mostrato nulla mentre il gestore degli accessi indica che questa sessione è bloccata.</translation>
    </message>
</context>
<context>
    <name>MouseClickIndicatorView</name>
    <message>
        <source>Left mouse click</source>
        <translation>Clic sinistro</translation>
    </message>
    <message>
        <source>Right mouse click</source>
        <translation>Clic destro</translation>
    </message>
</context>
<context>
    <name>PermissionStatusView</name>
    <message>
        <source>Granted</source>
        <translation>Concesso</translation>
    </message>
    <message>
        <source>Not Granted</source>
        <translation>Non concesso</translation>
    </message>
</context>
<context>
    <name>Platform</name>
    <message>
        <source>VANTREL_OVERLAY must be &quot;x11&quot; or &quot;wayland&quot;, not &quot;%1&quot;</source>
        <translation>VANTREL_OVERLAY deve essere «x11» o «wayland», non «%1»</translation>
    </message>
    <message>
        <source>no Wayland compositor with the layer shell answers (VANTREL_OVERLAY=wayland needs one)</source>
        <translation>nessun compositor Wayland con layer shell risponde (VANTREL_OVERLAY=wayland ne richiede uno)</translation>
    </message>
    <message>
        <source>no display for the overlays: the Wayland compositor offers no layer shell and DISPLAY is not set (no XWayland)</source>
        <translation>nessuna visualizzazione per gli overlay: il compositor Wayland non offre layer shell e DISPLAY non è impostato (niente XWayland)</translation>
    </message>
    <message>
        <source>no X11 display: DISPLAY is not set (Vantrel needs an X11 desktop)</source>
        <translation>nessun display X11: DISPLAY non è impostato (Vantrel richiede un desktop X11)</translation>
    </message>
    <message>
        <source>cannot open X11 display &quot;%1&quot;</source>
        <translation>impossibile aprire il display X11 «%1»</translation>
    </message>
</context>
<context>
    <name>PositionCustomizerHeader</name>
    <message>
        <source>Drag to Position</source>
        <translation>Trascina per posizionare</translation>
    </message>
    <message>
        <source>Drag the key display to your desired location. Click anywhere to save or press Escape to ignore changes.</source>
        <translation>Trascina i tasti dove preferisci. Fai clic ovunque per salvare o premi Esc per annullare.</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Nascondi</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fine</translation>
    </message>
</context>
<context>
    <name>PositionCustomizerWindowController</name>
    <message>
        <source>Drag to Position</source>
        <translation>Trascina per posizionare</translation>
    </message>
</context>
<context>
    <name>SavePresetDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Salva stile</translation>
    </message>
    <message>
        <source>Preset Name</source>
        <translation>Nome dello stile</translation>
    </message>
</context>
<context>
    <name>ScreenSaverLockWatcher</name>
    <message>
        <source>There is no session bus to hear the screen locker on.</source>
        <translation>Non c’è un bus di sessione su cui ascoltare il blocco schermo.</translation>
    </message>
    <message>
        <source>Nothing is shown while the screen locker is active.</source>
        <translation>Non viene mostrato nulla mentre il blocco schermo è attivo.</translation>
    </message>
</context>
<context>
    <name>Secrecy</name>
    <message>
        <source>Locked session</source>
        <translation>Sessione bloccata</translation>
    </message>
    <message>
        <source>Screen locker</source>
        <translation>Blocco schermo</translation>
    </message>
    <message>
        <source>X11 screen saver</source>
        <translation>Salvaschermo X11</translation>
    </message>
    <message>
        <source>Password fields</source>
        <translation>Campi password</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Vantrel Settings</source>
        <translation>Impostazioni di Vantrel</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Appearance settings are not available yet.</source>
        <translation>Le impostazioni dell’aspetto non sono ancora disponibili.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aspetto</translation>
    </message>
    <message>
        <source>Displays</source>
        <translation>Schermi</translation>
    </message>
    <message>
        <source>Shortcut settings are not available yet.</source>
        <translation>Le impostazioni delle scorciatoie non sono ancora disponibili.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Scorciatoie</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
</context>
<context>
    <name>TrayMenu</name>
    <message>
        <source>Increase Key Size</source>
        <translation>Ingrandisci i tasti</translation>
    </message>
    <message>
        <source>Decrease Key Size</source>
        <translation>Rimpicciolisci i tasti</translation>
    </message>
    <message>
        <source>Open Position Customizer</source>
        <translation>Personalizza la posizione</translation>
    </message>
    <message>
        <source>Toggle Mouse Clicks</source>
        <translation>Mostra/nascondi i clic</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Impostazioni…</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>FAQ</source>
        <translation>FAQ</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Assistenza</translation>
    </message>
    <message>
        <source>Social</source>
        <translation>Social</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>Cerca aggiornamenti…</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Sito web</translation>
    </message>
    <message>
        <source>Suggest Idea</source>
        <translation>Suggerisci un’idea</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Altre app</translation>
    </message>
    <message>
        <source>Quit Vantrel</source>
        <translation>Esci da Vantrel</translation>
    </message>
    <message>
        <source>Stop Vantrel</source>
        <translation>Ferma Vantrel</translation>
    </message>
    <message>
        <source>Start Vantrel</source>
        <translation>Avvia Vantrel</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>The update server answered with HTTP error %1%2.</source>
        <translation>Il server degli aggiornamenti ha risposto con l’errore HTTP %1%2.</translation>
    </message>
    <message>
        <source>The update server did not answer within %1 seconds.</source>
        <translation>Il server degli aggiornamenti non ha risposto entro %1 secondi.</translation>
    </message>
    <message>
        <source>Could not reach the update server (%1). Check that you are online and try again.</source>
        <translation>Impossibile raggiungere il server degli aggiornamenti (%1). Controlla la connessione e riprova.</translation>
    </message>
    <message>
        <source>The update check failed: %1.</source>
        <translation>La ricerca di aggiornamenti non è riuscita: %1.</translation>
    </message>
    <message>
        <source>The update feed lists no versions.</source>
        <translation>Il feed degli aggiornamenti non elenca versioni.</translation>
    </message>
    <message>
        <source>The update feed is not an RSS feed.</source>
        <translation>Il feed degli aggiornamenti non è un feed RSS.</translation>
    </message>
</context>
<context>
    <name>Utils</name>
    <message>
        <source>Version %1 (Build %2)</source>
        <translation>Versione %1 (build %2)</translation>
    </message>
</context>
<context>
    <name>VantrelApp</name>
    <message>
        <source>Start or stop showing keys.</source>
        <translation>Avvia o ferma la visualizzazione dei tasti.</translation>
    </message>
    <message>
        <source>Make the key caps larger.</source>
        <translation>Ingrandisci i tasti.</translation>
    </message>
    <message>
        <source>Make the key caps smaller.</source>
        <translation>Rimpicciolisci i tasti.</translation>
    </message>
    <message>
        <source>Drag the key row to a place of your own.</source>
        <translation>Trascina la fila di tasti dove vuoi.</translation>
    </message>
    <message>
        <source>Show or hide mouse clicks.</source>
        <translation>Mostra o nascondi i clic del mouse.</translation>
    </message>
    <message>
        <source>Open the settings window.</source>
        <translation>Apri la finestra delle impostazioni.</translation>
    </message>
    <message>
        <source>Quit Vantrel.</source>
        <translation>Esci da Vantrel.</translation>
    </message>
    <message>
        <source>Usage: vantrel [option]

Shows the keys you press as key caps in a transparent overlay on each enabled
display, for presentations, teaching, streams and screencasts. It lives in the
system tray; starting it again opens the settings of the running Vantrel.

Options:
</source>
        <translation>Uso: vantrel [opzione]

Mostra i tasti premuti in un overlay trasparente su ogni schermo attivo, per
presentazioni, lezioni, stream e screencast. Vive nell’area di notifica;
avviarlo di nuovo apre le impostazioni del Vantrel in esecuzione.

Opzioni:
</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>Mostra questo aiuto ed esci.</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>Mostra la versione ed esci.</translation>
    </message>
    <message>
        <source>Remote control of the running Vantrel (bind these to keys of your desktop):</source>
        <translation>Controllo remoto del Vantrel in esecuzione (da assegnare alle scorciatoie del desktop):</translation>
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
        <translation>Sessioni:
  X11      tasti dal server X; gli overlay sono finestre X11.
  Wayland  tasti dai dispositivi di input (/dev/input, o la cartella indicata da
           VANTREL_INPUT_DIR), nominati secondo la tastiera del compositor; gli
           overlay sono superfici layer shell se il compositor la offre, altrimenti
           finestre X11 tramite XWayland. VANTREL_OVERLAY=wayland o
           VANTREL_OVERLAY=x11 sceglie una delle due. Leggere i dispositivi richiede
           il gruppo input, o «Consenti» nelle impostazioni (una password di
           amministratore avvia vantrel-input-helper tramite pkexec).
</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>Impostazioni: %1</translation>
    </message>
    <message>
        <source>Vantrel is not running</source>
        <translation>Vantrel non è in esecuzione</translation>
    </message>
    <message>
        <source>one option at a time, not &apos;%1&apos; (see vantrel --help)</source>
        <translation>una sola opzione alla volta, non «%1» (vedi vantrel --help)</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; (see vantrel --help)</source>
        <translation>opzione sconosciuta «%1» (vedi vantrel --help)</translation>
    </message>
    <message>
        <source>Vantrel is already running; its settings window opens.</source>
        <translation>Vantrel è già in esecuzione; si apre la finestra delle impostazioni.</translation>
    </message>
    <message>
        <source>another Vantrel holds the session but does not answer</source>
        <translation>un altro Vantrel occupa la sessione ma non risponde</translation>
    </message>
    <message>
        <source>no D-Bus session bus; running alone, without remote control or the one-instance check</source>
        <translation>nessun bus di sessione D-Bus; Vantrel funziona da solo, senza controllo remoto né verifica di istanza unica</translation>
    </message>
    <message>
        <source>cannot listen to the keyboard: %1</source>
        <translation>impossibile ascoltare la tastiera: %1</translation>
    </message>
    <message>
        <source>Vantrel is switched off (&quot;Show pressed keys on screen&quot; is off).</source>
        <translation>Vantrel è disattivato («Mostra i tasti premuti sullo schermo» è disattivato).</translation>
    </message>
    <message>
        <source>the shortcut %1 of &quot;%2&quot; is already used by another program; it does nothing until that program lets it go</source>
        <translation>la scorciatoia %1 di «%2» è già usata da un altro programma; non avrà effetto finché quel programma non la libera</translation>
    </message>
    <message>
        <source>no system tray found; opening the settings window instead of the tray menu</source>
        <translation>nessuna area di notifica trovata; si apre la finestra delle impostazioni al posto del menu</translation>
    </message>
    <message>
        <source>Vantrel is showing pressed keys on screen.</source>
        <translation>Vantrel mostra i tasti premuti sullo schermo.</translation>
    </message>
    <message>
        <source>Vantrel stopped showing pressed keys.</source>
        <translation>Vantrel ha smesso di mostrare i tasti premuti.</translation>
    </message>
    <message>
        <source>Privacy: nothing is shown, keys, modifiers and clicks alike, while the session is
locked (logind, the screen locker&apos;s signals, the X11 screen saver) or while a
password field has the focus (followed on the accessibility bus, AT-SPI2).
Settings &gt; General &gt; Input Monitoring lists which protections are on.
Not covered: a password typed into a terminal (sudo, ssh) has no field to
detect; switch Vantrel off first (vantrel --toggle).
</source>
        <translation>Privacy: non viene mostrato nulla, né tasti né modificatori né clic, mentre la
sessione è bloccata (logind, i segnali del blocco schermo, il salvaschermo X11)
o mentre un campo password ha il focus (seguito sul bus di accessibilità,
AT-SPI2). Impostazioni &gt; Generale &gt; Accesso alla tastiera elenca le protezioni
in funzione.
Non coperto: una password digitata in un terminale (sudo, ssh) non ha un campo
da rilevare; disattiva prima Vantrel (vantrel --toggle).
</translation>
    </message>
</context>
<context>
    <name>X11CaptureBackend</name>
    <message>
        <source>The X server has no XInput extension; Vantrel needs XInput 2.2.</source>
        <translation>Il server X non ha l’estensione XInput; Vantrel richiede XInput 2.2.</translation>
    </message>
    <message>
        <source>The X server did not answer the XInput version query.</source>
        <translation>Il server X non ha risposto alla richiesta della versione di XInput.</translation>
    </message>
    <message>
        <source>The X server offers XInput %1.%2; Vantrel needs XInput 2.2 or newer.</source>
        <translation>Il server X offre XInput %1.%2; Vantrel richiede XInput 2.2 o successivo.</translation>
    </message>
    <message>
        <source>No X display is set (DISPLAY is empty); Vantrel needs an X11 desktop.</source>
        <translation>Nessun display X impostato (DISPLAY è vuoto); Vantrel richiede un desktop X11.</translation>
    </message>
    <message>
        <source>Vantrel cannot open the X display &quot;%1&quot;.</source>
        <translation>Vantrel non può aprire il display X «%1».</translation>
    </message>
    <message>
        <source>Log in to an X11 session (Xorg), not a Wayland one.</source>
        <translation>Accedi a una sessione X11 (Xorg), non Wayland.</translation>
    </message>
    <message>
        <source>Make sure the X server offers XInput 2.2 (every current Xorg does).</source>
        <translation>Verifica che il server X offra XInput 2.2 (ogni Xorg attuale lo fa).</translation>
    </message>
</context>
<context>
    <name>X11ScreenSaverWatcher</name>
    <message>
        <source>The X server has no screen saver extension (MIT-SCREEN-SAVER).</source>
        <translation>Il server X non ha l’estensione salvaschermo (MIT-SCREEN-SAVER).</translation>
    </message>
    <message>
        <source>Nothing is shown while the X11 screen saver or locker is on.</source>
        <translation>Non viene mostrato nulla mentre il salvaschermo o il blocco di X11 è attivo.</translation>
    </message>
</context>
</TS>
