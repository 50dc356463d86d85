<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>AboutSettingsView</name>
    <message>
        <source>Official Website</source>
        <translation>Site officiel</translation>
    </message>
    <message>
        <source>Visit the official Vantrel website</source>
        <translation>Visiter le site officiel de Vantrel</translation>
    </message>
    <message>
        <source>Watch Vantrel videos on YouTube</source>
        <translation>Voir les vidéos de Vantrel sur YouTube</translation>
    </message>
</context>
<context>
    <name>AddPresetTile</name>
    <message>
        <source>New Preset</source>
        <translation>Nouveau style</translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>Software Update</source>
        <translation>Mise à jour</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Recherche de mises à jour…</translation>
    </message>
    <message>
        <source>Asking %1</source>
        <translation>Interrogation de %1</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>Vantrel est à jour !</translation>
    </message>
    <message>
        <source>Vantrel %1 is the newest version available.</source>
        <translation>Vantrel %1 est la version la plus récente.</translation>
    </message>
    <message>
        <source>A new version of Vantrel is available!</source>
        <translation>Une nouvelle version de Vantrel est disponible !</translation>
    </message>
    <message>
        <source>Vantrel %1 is available; you have %2.</source>
        <translation>Vantrel %1 est disponible ; vous avez la %2.</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Télécharger</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Vantrel could not check for updates.</source>
        <translation>Vantrel n’a pas pu rechercher de mises à jour.</translation>
    </message>
</context>
<context>
    <name>AppearanceSettingsView</name>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Espacement</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Rayon des coins</translation>
    </message>
    <message>
        <source>Border Width</source>
        <translation>Épaisseur du bord</translation>
    </message>
    <message>
        <source>Shadow Radius</source>
        <translation>Rayon de l’ombre</translation>
    </message>
    <message>
        <source>Glow Radius</source>
        <translation>Rayon de la lueur</translation>
    </message>
    <message>
        <source>Modern</source>
        <translation>Moderne</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Classique</translation>
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
        <translation>Néon</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Fade In</source>
        <translation>Fondu</translation>
    </message>
    <message>
        <source>Scale In</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Slide In</source>
        <translation>Glissement</translation>
    </message>
    <message>
        <source>Bounce</source>
        <translation>Rebond</translation>
    </message>
    <message>
        <source>Style Presets</source>
        <translation>Styles prédéfinis</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>How keys appear on screen</source>
        <translation>Apparition des touches à l’écran</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Choose the font family</source>
        <translation>Choisir la police</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Text Color</source>
        <translation>Couleur du texte</translation>
    </message>
    <message>
        <source>Color of the key labels</source>
        <translation>Couleur des libellés des touches</translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation>Couleur de fond</translation>
    </message>
    <message>
        <source>Color of the key background</source>
        <translation>Couleur du fond des touches</translation>
    </message>
    <message>
        <source>Border Color</source>
        <translation>Couleur du bord</translation>
    </message>
    <message>
        <source>Color of the key border</source>
        <translation>Couleur du bord des touches</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effets</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Ombre</translation>
    </message>
    <message>
        <source>Add drop shadow to keys</source>
        <translation>Ajouter une ombre aux touches</translation>
    </message>
    <message>
        <source>Shadow Color</source>
        <translation>Couleur de l’ombre</translation>
    </message>
    <message>
        <source>Color of the drop shadow</source>
        <translation>Couleur de l’ombre portée</translation>
    </message>
    <message>
        <source>Glow Effect</source>
        <translation>Effet lumineux</translation>
    </message>
    <message>
        <source>Add glow effect to keys</source>
        <translation>Ajouter une lueur aux touches</translation>
    </message>
    <message>
        <source>Glow Color</source>
        <translation>Couleur de la lueur</translation>
    </message>
    <message>
        <source>Color of the glow effect</source>
        <translation>Couleur de l’effet lumineux</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Reset to default appearance settings</source>
        <translation>Rétablir l’apparence par défaut</translation>
    </message>
</context>
<context>
    <name>AtSpiFocusWatcher</name>
    <message>
        <source>The accessibility bus (AT-SPI) is not running, so password fields cannot be recognised.</source>
        <translation>Le bus d’accessibilité (AT-SPI) ne fonctionne pas : les champs de mot de passe ne peuvent pas être reconnus.</translation>
    </message>
    <message>
        <source>There is no session bus to find the accessibility bus on.</source>
        <translation>Aucun bus de session pour trouver le bus d’accessibilité.</translation>
    </message>
    <message>
        <source>Nothing is shown while a password field has the focus.</source>
        <translation>Rien n’est affiché tant qu’un champ de mot de passe a le focus.</translation>
    </message>
</context>
<context>
    <name>DisplaySettingsView</name>
    <message>
        <source>Top Left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>Top Center</source>
        <translation>En haut au centre</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>Bottom Center</source>
        <translation>En bas au centre</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisée</translation>
    </message>
    <message>
        <source>Connected Displays</source>
        <translation>Écrans connectés</translation>
    </message>
    <message>
        <source>No displays detected</source>
        <translation>Aucun écran détecté</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Refresh the list of connected displays</source>
        <translation>Actualiser la liste des écrans connectés</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Reset display settings to defaults</source>
        <translation>Rétablir les réglages des écrans par défaut</translation>
    </message>
    <message>
        <source>Keystrokes will be shown on this display</source>
        <translation>Les touches s’affichent sur cet écran</translation>
    </message>
    <message>
        <source>Keystrokes will be not shown on this display</source>
        <translation>Les touches ne s’affichent pas sur cet écran</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Edit custom position</source>
        <translation>Modifier la position personnalisée</translation>
    </message>
</context>
<context>
    <name>EvdevCaptureBackend</name>
    <message>
        <source>Vantrel finds no input devices: the folder %1 does not exist.</source>
        <translation>Vantrel ne trouve aucun périphérique d’entrée : le dossier %1 n’existe pas.</translation>
    </message>
    <message>
        <source>You are in the input group, but this session began before you joined it: log out and back in.</source>
        <translation>Vous êtes dans le groupe input, mais cette session a commencé avant : déconnectez-vous puis reconnectez-vous.</translation>
    </message>
    <message>
        <source>Vantrel cannot read the input devices in %1 (permission denied).</source>
        <translation>Vantrel ne peut pas lire les périphériques d’entrée de %1 (permission refusée).</translation>
    </message>
    <message>
        <source>Vantrel finds no keyboard in %1.</source>
        <translation>Vantrel ne trouve aucun clavier dans %1.</translation>
    </message>
    <message>
        <source>Choose Allow and give an administrator&apos;s password: Vantrel&apos;s input helper then reads the keyboard until Vantrel quits. If no password dialog appears, start your desktop&apos;s authentication agent and choose Allow again.</source>
        <translation>Choisissez « Autoriser » et saisissez un mot de passe administrateur : l’assistant d’entrée de Vantrel lit alors le clavier jusqu’à ce que Vantrel quitte. Si aucune fenêtre de mot de passe n’apparaît, lancez l’agent d’authentification de votre bureau et choisissez à nouveau « Autoriser ».</translation>
    </message>
    <message>
        <source>Or add yourself to the input group: sudo usermod -aG input $USER. Every program you run can then read every key you type.</source>
        <translation>Ou ajoutez-vous au groupe input : sudo usermod -aG input $USER. Chaque programme que vous lancez pourra alors lire toutes vos frappes.</translation>
    </message>
    <message>
        <source>Log out and back in, so that the new group applies, then choose Check Again.</source>
        <translation>Déconnectez-vous puis reconnectez-vous pour que le groupe s’applique, puis choisissez « Vérifier ».</translation>
    </message>
    <message>
        <source>Vantrel&apos;s input helper stopped twice; choose Allow to start it again.</source>
        <translation>L’assistant d’entrée de Vantrel s’est arrêté deux fois ; choisissez « Autoriser » pour le relancer.</translation>
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
            <numerusform>%Ln touche</numerusform>
            <numerusform>%Ln touches</numerusform>
        </translation>
    </message>
    <message>
        <source>App Settings</source>
        <translation>Application</translation>
    </message>
    <message>
        <source>Enable Vantrel</source>
        <translation>Activer Vantrel</translation>
    </message>
    <message>
        <source>Show pressed keys on screen</source>
        <translation>Afficher les touches pressées à l’écran</translation>
    </message>
    <message>
        <source>Launch at Login</source>
        <translation>Lancer à l’ouverture de session</translation>
    </message>
    <message>
        <source>Start Vantrel automatically when you log in</source>
        <translation>Démarrer Vantrel automatiquement à la connexion</translation>
    </message>
    <message>
        <source>Menu Bar Icon</source>
        <translation>Icône de la barre</translation>
    </message>
    <message>
        <source>Choose the icon for the menu bar</source>
        <translation>Choisir l’icône de la barre des menus</translation>
    </message>
    <message>
        <source>Input Monitoring Access Information</source>
        <translation>Informations sur l’accès au clavier</translation>
    </message>
    <message>
        <source>Input Monitoring Access</source>
        <translation>Accès au clavier</translation>
    </message>
    <message>
        <source>Required to display your key presses</source>
        <translation>Requis pour afficher vos frappes</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Display Duration</source>
        <translation>Durée d’affichage</translation>
    </message>
    <message>
        <source>Max Keys Displayed</source>
        <translation>Touches affichées (max.)</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Reset to default display settings</source>
        <translation>Rétablir l’affichage par défaut</translation>
    </message>
    <message>
        <source>Key Types</source>
        <translation>Types de touches</translation>
    </message>
    <message>
        <source>Show All Keys</source>
        <translation>Toutes les touches</translation>
    </message>
    <message>
        <source>Display every key press</source>
        <translation>Afficher chaque frappe</translation>
    </message>
    <message>
        <source>Show Modifier Keys</source>
        <translation>Touches de modification</translation>
    </message>
    <message>
        <source>Show Function Keys</source>
        <translation>Touches de fonction</translation>
    </message>
    <message>
        <source>F1, F2, F3, etc.</source>
        <translation>F1, F2, F3, etc.</translation>
    </message>
    <message>
        <source>Show Special Keys</source>
        <translation>Touches spéciales</translation>
    </message>
    <message>
        <source>Enter, Tab, Delete, and Escape</source>
        <translation>Entrée, Tab, Suppr et Échap</translation>
    </message>
    <message>
        <source>Reset to default key type settings</source>
        <translation>Rétablir les types de touches par défaut</translation>
    </message>
    <message>
        <source>Mouse Clicks</source>
        <translation>Clics de souris</translation>
    </message>
    <message>
        <source>Show Mouse Clicks</source>
        <translation>Afficher les clics</translation>
    </message>
    <message>
        <source>Display left and right clicks</source>
        <translation>Afficher les clics gauche et droit</translation>
    </message>
    <message>
        <source>Reset All Settings</source>
        <translation>Tout réinitialiser</translation>
    </message>
    <message>
        <source>Reset all settings to their default values</source>
        <translation>Rétablir tous les réglages par défaut</translation>
    </message>
    <message>
        <source>This action cannot be undone</source>
        <translation>Cette action est irréversible</translation>
    </message>
    <message>
        <source>Reset All Settings?</source>
        <translation>Réinitialiser tous les réglages ?</translation>
    </message>
    <message>
        <source>Are you sure you want to reset all settings to their default values?</source>
        <translation>Voulez-vous vraiment rétablir tous les réglages par défaut ?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>GlobalShortcutNames</name>
    <message>
        <source>Toggle Vantrel</source>
        <translation>Activer/désactiver Vantrel</translation>
    </message>
    <message>
        <source>Increase Key Size</source>
        <translation>Agrandir les touches</translation>
    </message>
    <message>
        <source>Decrease Key Size</source>
        <translation>Réduire les touches</translation>
    </message>
    <message>
        <source>Open Position Customizer</source>
        <translation>Personnaliser la position</translation>
    </message>
    <message>
        <source>Toggle Mouse Clicks</source>
        <translation>Afficher/masquer les clics</translation>
    </message>
</context>
<context>
    <name>InputHelperProcess</name>
    <message>
        <source>The password dialog was closed; Vantrel cannot read the keyboard.</source>
        <translation>La fenêtre de mot de passe a été fermée ; Vantrel ne peut pas lire le clavier.</translation>
    </message>
    <message>
        <source>No authentication agent answered; start your desktop&apos;s authentication agent, then choose Check Again.</source>
        <translation>Aucun agent d’authentification ne répond ; lancez celui de votre bureau, puis choisissez « Vérifier ».</translation>
    </message>
    <message>
        <source>Vantrel&apos;s input helper stopped.</source>
        <translation>L’assistant d’entrée de Vantrel s’est arrêté.</translation>
    </message>
</context>
<context>
    <name>InputMonitoringSheet</name>
    <message>
        <source>Input Monitoring</source>
        <translation>Accès au clavier</translation>
    </message>
    <message>
        <source>Enable Input Monitoring</source>
        <translation>Autoriser l’accès au clavier</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>Vérifier</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Autoriser</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Confidentialité</translation>
    </message>
    <message>
        <source>Not covered: a password typed into a terminal (sudo, ssh) has no field to recognise, so it shows like any other typing.</source>
        <translation>Non couvert : un mot de passe saisi dans un terminal (sudo, ssh) n’a pas de champ à reconnaître ; il s’affiche comme toute autre saisie.</translation>
    </message>
    <message>
        <source>%1: on.</source>
        <translation>%1 : en service.</translation>
    </message>
    <message>
        <source>%1: off.</source>
        <translation>%1 : hors service.</translation>
    </message>
    <message>
        <source>Keys are not hidden anywhere: no protection is running.</source>
        <translation>Aucune touche n’est masquée : aucune protection n’est en service.</translation>
    </message>
</context>
<context>
    <name>KeyShortcutsSettingsView</name>
    <message>
        <source>Global Shortcuts</source>
        <translation>Raccourcis globaux</translation>
    </message>
    <message>
        <source>This desktop lets you bind keys to Vantrel&apos;s commands in its keyboard settings</source>
        <translation>Sur ce bureau, associez des raccourcis aux commandes de Vantrel dans les réglages du clavier</translation>
    </message>
</context>
<context>
    <name>KeyStylePreview</name>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>KeyboardShortcutRecorder</name>
    <message>
        <source>Clear Shortcut</source>
        <translation>Effacer le raccourci</translation>
    </message>
    <message>
        <source>Use at least one of Ctrl, Alt and Super, or a function key</source>
        <translation>Utilisez au moins Ctrl, Alt ou Super, ou une touche de fonction</translation>
    </message>
    <message>
        <source>%1 is already used by another program</source>
        <translation>%1 est déjà utilisé par un autre programme</translation>
    </message>
    <message>
        <source>%1 is already used by another shortcut</source>
        <translation>%1 est déjà attribué à un autre raccourci</translation>
    </message>
    <message>
        <source>%1 cannot be used on this keyboard</source>
        <translation>%1 n’est pas disponible sur ce clavier</translation>
    </message>
    <message>
        <source>Press Shortcut</source>
        <translation>Tapez le raccourci</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>Enregistrer</translation>
    </message>
</context>
<context>
    <name>LogindLockWatcher</name>
    <message>
        <source>There is no system bus to ask the login manager (logind).</source>
        <translation>Aucun bus système pour interroger le gestionnaire de connexions (logind).</translation>
    </message>
    <message>
        <source>The login manager (logind) does not answer.</source>
        <translation>Le gestionnaire de connexions (logind) ne répond pas.</translation>
    </message>
    <message>
        <source>The login manager (logind) knows no session of yours.</source>
        <translation>Le gestionnaire de connexions (logind) ne connaît aucune session à vous.</translation>
    </message>
    <message>
        <source>Nothing is shown while the login manager says this session is locked.</source>
        <translation>Rien n’est affiché tant que le gestionnaire de connexions indique que cette session est verrouillée.</translation>
    </message>
</context>
<context>
    <name>MouseClickIndicatorView</name>
    <message>
        <source>Left mouse click</source>
        <translation>Clic gauche</translation>
    </message>
    <message>
        <source>Right mouse click</source>
        <translation>Clic droit</translation>
    </message>
</context>
<context>
    <name>PermissionStatusView</name>
    <message>
        <source>Granted</source>
        <translation>Accordé</translation>
    </message>
    <message>
        <source>Not Granted</source>
        <translation>Non accordé</translation>
    </message>
</context>
<context>
    <name>Platform</name>
    <message>
        <source>VANTREL_OVERLAY must be &quot;x11&quot; or &quot;wayland&quot;, not &quot;%1&quot;</source>
        <translation>VANTREL_OVERLAY doit valoir « x11 » ou « wayland », pas « %1 »</translation>
    </message>
    <message>
        <source>no Wayland compositor with the layer shell answers (VANTREL_OVERLAY=wayland needs one)</source>
        <translation>aucun compositeur Wayland avec layer shell ne répond (VANTREL_OVERLAY=wayland en exige un)</translation>
    </message>
    <message>
        <source>no display for the overlays: the Wayland compositor offers no layer shell and DISPLAY is not set (no XWayland)</source>
        <translation>aucun affichage pour les calques : le compositeur Wayland n’offre pas de layer shell et DISPLAY n’est pas défini (pas de XWayland)</translation>
    </message>
    <message>
        <source>no X11 display: DISPLAY is not set (Vantrel needs an X11 desktop)</source>
        <translation>aucun affichage X11 : DISPLAY n’est pas défini (Vantrel a besoin d’un bureau X11)</translation>
    </message>
    <message>
        <source>cannot open X11 display &quot;%1&quot;</source>
        <translation>impossible d’ouvrir l’affichage X11 « %1 »</translation>
    </message>
</context>
<context>
    <name>PositionCustomizerHeader</name>
    <message>
        <source>Drag to Position</source>
        <translation>Faites glisser pour placer</translation>
    </message>
    <message>
        <source>Drag the key display to your desired location. Click anywhere to save or press Escape to ignore changes.</source>
        <translation>Faites glisser les touches à l’endroit voulu. Cliquez n’importe où pour enregistrer ou appuyez sur Échap pour annuler.</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
</context>
<context>
    <name>PositionCustomizerWindowController</name>
    <message>
        <source>Drag to Position</source>
        <translation>Faites glisser pour placer</translation>
    </message>
</context>
<context>
    <name>SavePresetDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Enregistrer le style</translation>
    </message>
    <message>
        <source>Preset Name</source>
        <translation>Nom du style</translation>
    </message>
</context>
<context>
    <name>ScreenSaverLockWatcher</name>
    <message>
        <source>There is no session bus to hear the screen locker on.</source>
        <translation>Aucun bus de session pour écouter le verrouillage d’écran.</translation>
    </message>
    <message>
        <source>Nothing is shown while the screen locker is active.</source>
        <translation>Rien n’est affiché tant que le verrouillage d’écran est actif.</translation>
    </message>
</context>
<context>
    <name>Secrecy</name>
    <message>
        <source>Locked session</source>
        <translation>Session verrouillée</translation>
    </message>
    <message>
        <source>Screen locker</source>
        <translation>Verrouillage d’écran</translation>
    </message>
    <message>
        <source>X11 screen saver</source>
        <translation>Économiseur d’écran X11</translation>
    </message>
    <message>
        <source>Password fields</source>
        <translation>Champs de mot de passe</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Vantrel Settings</source>
        <translation>Réglages de Vantrel</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Appearance settings are not available yet.</source>
        <translation>Les réglages d’apparence ne sont pas encore disponibles.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Displays</source>
        <translation>Écrans</translation>
    </message>
    <message>
        <source>Shortcut settings are not available yet.</source>
        <translation>Les réglages des raccourcis ne sont pas encore disponibles.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Raccourcis</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
</context>
<context>
    <name>TrayMenu</name>
    <message>
        <source>Increase Key Size</source>
        <translation>Agrandir les touches</translation>
    </message>
    <message>
        <source>Decrease Key Size</source>
        <translation>Réduire les touches</translation>
    </message>
    <message>
        <source>Open Position Customizer</source>
        <translation>Personnaliser la position</translation>
    </message>
    <message>
        <source>Toggle Mouse Clicks</source>
        <translation>Afficher/masquer les clics</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Réglages…</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>FAQ</source>
        <translation>FAQ</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Vidéos</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Assistance</translation>
    </message>
    <message>
        <source>Social</source>
        <translation>Réseaux sociaux</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>Rechercher des mises à jour…</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>Suggest Idea</source>
        <translation>Suggérer une idée</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Autres apps</translation>
    </message>
    <message>
        <source>Quit Vantrel</source>
        <translation>Quitter Vantrel</translation>
    </message>
    <message>
        <source>Stop Vantrel</source>
        <translation>Arrêter Vantrel</translation>
    </message>
    <message>
        <source>Start Vantrel</source>
        <translation>Démarrer Vantrel</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>The update server answered with HTTP error %1%2.</source>
        <translation>Le serveur de mises à jour a répondu par l’erreur HTTP %1%2.</translation>
    </message>
    <message>
        <source>The update server did not answer within %1 seconds.</source>
        <translation>Le serveur de mises à jour n’a pas répondu en %1 secondes.</translation>
    </message>
    <message>
        <source>Could not reach the update server (%1). Check that you are online and try again.</source>
        <translation>Impossible de joindre le serveur de mises à jour (%1). Vérifiez votre connexion et réessayez.</translation>
    </message>
    <message>
        <source>The update check failed: %1.</source>
        <translation>La recherche de mises à jour a échoué : %1.</translation>
    </message>
    <message>
        <source>The update feed lists no versions.</source>
        <translation>Le flux de mises à jour ne contient aucune version.</translation>
    </message>
    <message>
        <source>The update feed is not an RSS feed.</source>
        <translation>Le flux de mises à jour n’est pas un flux RSS.</translation>
    </message>
</context>
<context>
    <name>Utils</name>
    <message>
        <source>Version %1 (Build %2)</source>
        <translation>Version %1 (build %2)</translation>
    </message>
</context>
<context>
    <name>VantrelApp</name>
    <message>
        <source>Start or stop showing keys.</source>
        <translation>Démarrer ou arrêter l’affichage des touches.</translation>
    </message>
    <message>
        <source>Make the key caps larger.</source>
        <translation>Agrandir les touches.</translation>
    </message>
    <message>
        <source>Make the key caps smaller.</source>
        <translation>Réduire les touches.</translation>
    </message>
    <message>
        <source>Drag the key row to a place of your own.</source>
        <translation>Faire glisser la rangée de touches où vous voulez.</translation>
    </message>
    <message>
        <source>Show or hide mouse clicks.</source>
        <translation>Afficher ou masquer les clics de souris.</translation>
    </message>
    <message>
        <source>Open the settings window.</source>
        <translation>Ouvrir la fenêtre des réglages.</translation>
    </message>
    <message>
        <source>Quit Vantrel.</source>
        <translation>Quitter Vantrel.</translation>
    </message>
    <message>
        <source>Usage: vantrel [option]

Shows the keys you press as key caps in a transparent overlay on each enabled
display, for presentations, teaching, streams and screencasts. It lives in the
system tray; starting it again opens the settings of the running Vantrel.

Options:
</source>
        <translation>Usage : vantrel [option]

Affiche les touches pressées dans un calque transparent sur chaque écran activé,
pour les présentations, les cours, les streams et les screencasts. Vantrel vit
dans la zone de notification ; le relancer ouvre les réglages du Vantrel actif.

Options :
</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>Afficher cette aide et quitter.</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>Afficher la version et quitter.</translation>
    </message>
    <message>
        <source>Remote control of the running Vantrel (bind these to keys of your desktop):</source>
        <translation>Contrôle à distance du Vantrel actif (à associer aux raccourcis du bureau) :</translation>
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
        <translation>Sessions :
  X11      touches lues sur le serveur X ; les calques sont des fenêtres X11.
  Wayland  touches lues sur les périphériques d’entrée (/dev/input, ou le dossier
           de VANTREL_INPUT_DIR), nommées selon le clavier du compositeur ; les
           calques sont des surfaces layer shell si le compositeur l’offre, sinon
           des fenêtres X11 via XWayland. VANTREL_OVERLAY=wayland ou
           VANTREL_OVERLAY=x11 choisit l’un des deux. Lire les périphériques exige
           le groupe input, ou « Autoriser » dans les réglages (un mot de passe
           administrateur lance vantrel-input-helper via pkexec).
</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>Réglages : %1</translation>
    </message>
    <message>
        <source>Vantrel is not running</source>
        <translation>Vantrel n’est pas lancé</translation>
    </message>
    <message>
        <source>one option at a time, not &apos;%1&apos; (see vantrel --help)</source>
        <translation>une seule option à la fois, pas « %1 » (voir vantrel --help)</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; (see vantrel --help)</source>
        <translation>option inconnue « %1 » (voir vantrel --help)</translation>
    </message>
    <message>
        <source>Vantrel is already running; its settings window opens.</source>
        <translation>Vantrel est déjà lancé ; sa fenêtre de réglages s’ouvre.</translation>
    </message>
    <message>
        <source>another Vantrel holds the session but does not answer</source>
        <translation>un autre Vantrel occupe la session mais ne répond pas</translation>
    </message>
    <message>
        <source>no D-Bus session bus; running alone, without remote control or the one-instance check</source>
        <translation>pas de bus de session D-Bus ; Vantrel fonctionne seul, sans contrôle à distance ni vérification d’instance unique</translation>
    </message>
    <message>
        <source>cannot listen to the keyboard: %1</source>
        <translation>impossible d’écouter le clavier : %1</translation>
    </message>
    <message>
        <source>Vantrel is switched off (&quot;Show pressed keys on screen&quot; is off).</source>
        <translation>Vantrel est désactivé (« Afficher les touches pressées à l’écran » est désactivé).</translation>
    </message>
    <message>
        <source>the shortcut %1 of &quot;%2&quot; is already used by another program; it does nothing until that program lets it go</source>
        <translation>le raccourci %1 de « %2 » est déjà utilisé par un autre programme ; il restera sans effet tant que celui-ci ne le libère pas</translation>
    </message>
    <message>
        <source>no system tray found; opening the settings window instead of the tray menu</source>
        <translation>aucune zone de notification trouvée ; la fenêtre des réglages s’ouvre à la place du menu</translation>
    </message>
    <message>
        <source>Vantrel is showing pressed keys on screen.</source>
        <translation>Vantrel affiche les touches pressées à l’écran.</translation>
    </message>
    <message>
        <source>Vantrel stopped showing pressed keys.</source>
        <translation>Vantrel n’affiche plus les touches pressées.</translation>
    </message>
    <message>
        <source>Privacy: nothing is shown, keys, modifiers and clicks alike, while the session is
locked (logind, the screen locker&apos;s signals, the X11 screen saver) or while a
password field has the focus (followed on the accessibility bus, AT-SPI2).
Settings &gt; General &gt; Input Monitoring lists which protections are on.
Not covered: a password typed into a terminal (sudo, ssh) has no field to
detect; switch Vantrel off first (vantrel --toggle).
</source>
        <translation>Confidentialité : rien n’est affiché, ni touches, ni touches de modification,
ni clics, tant que la session est verrouillée (logind, les signaux du
verrouillage d’écran, l’économiseur d’écran X11) ou qu’un champ de mot de passe
a le focus (suivi sur le bus d’accessibilité, AT-SPI2). Réglages &gt; Général &gt;
Accès au clavier indique les protections en service.
Non couvert : un mot de passe saisi dans un terminal (sudo, ssh) n’a pas de
champ à détecter ; désactivez d’abord Vantrel (vantrel --toggle).
</translation>
    </message>
</context>
<context>
    <name>X11CaptureBackend</name>
    <message>
        <source>The X server has no XInput extension; Vantrel needs XInput 2.2.</source>
        <translation>Le serveur X n’a pas l’extension XInput ; Vantrel a besoin de XInput 2.2.</translation>
    </message>
    <message>
        <source>The X server did not answer the XInput version query.</source>
        <translation>Le serveur X n’a pas répondu à la demande de version XInput.</translation>
    </message>
    <message>
        <source>The X server offers XInput %1.%2; Vantrel needs XInput 2.2 or newer.</source>
        <translation>Le serveur X offre XInput %1.%2 ; Vantrel a besoin de XInput 2.2 ou plus récent.</translation>
    </message>
    <message>
        <source>No X display is set (DISPLAY is empty); Vantrel needs an X11 desktop.</source>
        <translation>Aucun affichage X défini (DISPLAY est vide) ; Vantrel a besoin d’un bureau X11.</translation>
    </message>
    <message>
        <source>Vantrel cannot open the X display &quot;%1&quot;.</source>
        <translation>Vantrel ne peut pas ouvrir l’affichage X « %1 ».</translation>
    </message>
    <message>
        <source>Log in to an X11 session (Xorg), not a Wayland one.</source>
        <translation>Ouvrez une session X11 (Xorg), pas une session Wayland.</translation>
    </message>
    <message>
        <source>Make sure the X server offers XInput 2.2 (every current Xorg does).</source>
        <translation>Vérifiez que le serveur X offre XInput 2.2 (c’est le cas de tout Xorg récent).</translation>
    </message>
</context>
<context>
    <name>X11ScreenSaverWatcher</name>
    <message>
        <source>The X server has no screen saver extension (MIT-SCREEN-SAVER).</source>
        <translation>Le serveur X n’a pas l’extension d’économiseur d’écran (MIT-SCREEN-SAVER).</translation>
    </message>
    <message>
        <source>Nothing is shown while the X11 screen saver or locker is on.</source>
        <translation>Rien n’est affiché tant que l’économiseur d’écran X11 ou le verrouillage est actif.</translation>
    </message>
</context>
</TS>
