<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>AboutSettingsView</name>
    <message>
        <source>Official Website</source>
        <translation>Sitio web oficial</translation>
    </message>
    <message>
        <source>Visit the official Vantrel website</source>
        <translation>Visitar el sitio web oficial de Vantrel</translation>
    </message>
    <message>
        <source>Watch Vantrel videos on YouTube</source>
        <translation>Ver vídeos de Vantrel en YouTube</translation>
    </message>
</context>
<context>
    <name>AddPresetTile</name>
    <message>
        <source>New Preset</source>
        <translation>Nuevo estilo</translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>Software Update</source>
        <translation>Actualización</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Buscando actualizaciones…</translation>
    </message>
    <message>
        <source>Asking %1</source>
        <translation>Consultando %1</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>¡Vantrel está actualizado!</translation>
    </message>
    <message>
        <source>Vantrel %1 is the newest version available.</source>
        <translation>Vantrel %1 es la versión más reciente.</translation>
    </message>
    <message>
        <source>A new version of Vantrel is available!</source>
        <translation>¡Hay una nueva versión de Vantrel!</translation>
    </message>
    <message>
        <source>Vantrel %1 is available; you have %2.</source>
        <translation>Vantrel %1 está disponible; tienes la %2.</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descargar</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>Vantrel could not check for updates.</source>
        <translation>Vantrel no pudo buscar actualizaciones.</translation>
    </message>
</context>
<context>
    <name>AppearanceSettingsView</name>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Espaciado</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radio de esquina</translation>
    </message>
    <message>
        <source>Border Width</source>
        <translation>Grosor del borde</translation>
    </message>
    <message>
        <source>Shadow Radius</source>
        <translation>Radio de sombra</translation>
    </message>
    <message>
        <source>Glow Radius</source>
        <translation>Radio del brillo</translation>
    </message>
    <message>
        <source>Modern</source>
        <translation>Moderno</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Clásico</translation>
    </message>
    <message>
        <source>Minimal</source>
        <translation>Mínimo</translation>
    </message>
    <message>
        <source>Gaming</source>
        <translation>Gaming</translation>
    </message>
    <message>
        <source>Neon</source>
        <translation>Neón</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Fade In</source>
        <translation>Fundido</translation>
    </message>
    <message>
        <source>Scale In</source>
        <translation>Escalar</translation>
    </message>
    <message>
        <source>Slide In</source>
        <translation>Deslizar</translation>
    </message>
    <message>
        <source>Bounce</source>
        <translation>Rebote</translation>
    </message>
    <message>
        <source>Style Presets</source>
        <translation>Estilos predefinidos</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>Básico</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animación</translation>
    </message>
    <message>
        <source>How keys appear on screen</source>
        <translation>Cómo aparecen las teclas</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Choose the font family</source>
        <translation>Elige la fuente</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>Text Color</source>
        <translation>Color del texto</translation>
    </message>
    <message>
        <source>Color of the key labels</source>
        <translation>Color de las etiquetas de las teclas</translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation>Color de fondo</translation>
    </message>
    <message>
        <source>Color of the key background</source>
        <translation>Color del fondo de las teclas</translation>
    </message>
    <message>
        <source>Border Color</source>
        <translation>Color del borde</translation>
    </message>
    <message>
        <source>Color of the key border</source>
        <translation>Color del borde de las teclas</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efectos</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Sombra</translation>
    </message>
    <message>
        <source>Add drop shadow to keys</source>
        <translation>Añadir sombra a las teclas</translation>
    </message>
    <message>
        <source>Shadow Color</source>
        <translation>Color de la sombra</translation>
    </message>
    <message>
        <source>Color of the drop shadow</source>
        <translation>Color de la sombra</translation>
    </message>
    <message>
        <source>Glow Effect</source>
        <translation>Efecto de brillo</translation>
    </message>
    <message>
        <source>Add glow effect to keys</source>
        <translation>Añadir brillo a las teclas</translation>
    </message>
    <message>
        <source>Glow Color</source>
        <translation>Color del brillo</translation>
    </message>
    <message>
        <source>Color of the glow effect</source>
        <translation>Color del efecto de brillo</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Reset to default appearance settings</source>
        <translation>Restablecer la apariencia predeterminada</translation>
    </message>
</context>
<context>
    <name>AtSpiFocusWatcher</name>
    <message>
        <source>The accessibility bus (AT-SPI) is not running, so password fields cannot be recognised.</source>
        <translation>El bus de accesibilidad (AT-SPI) no está en marcha, así que no se pueden reconocer los campos de contraseña.</translation>
    </message>
    <message>
        <source>There is no session bus to find the accessibility bus on.</source>
        <translation>No hay bus de sesión en el que buscar el bus de accesibilidad.</translation>
    </message>
    <message>
        <source>Nothing is shown while a password field has the focus.</source>
        <translation>No se muestra nada mientras un campo de contraseña tiene el foco.</translation>
    </message>
</context>
<context>
    <name>DisplaySettingsView</name>
    <message>
        <source>Top Left</source>
        <translation>Arriba a la izquierda</translation>
    </message>
    <message>
        <source>Top Center</source>
        <translation>Arriba en el centro</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>Arriba a la derecha</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>Abajo a la izquierda</translation>
    </message>
    <message>
        <source>Bottom Center</source>
        <translation>Abajo en el centro</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>Abajo a la derecha</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizada</translation>
    </message>
    <message>
        <source>Connected Displays</source>
        <translation>Pantallas conectadas</translation>
    </message>
    <message>
        <source>No displays detected</source>
        <translation>No se detectaron pantallas</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Volver a buscar</translation>
    </message>
    <message>
        <source>Refresh the list of connected displays</source>
        <translation>Actualizar la lista de pantallas conectadas</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Reset display settings to defaults</source>
        <translation>Restablecer los ajustes de pantalla</translation>
    </message>
    <message>
        <source>Keystrokes will be shown on this display</source>
        <translation>Las teclas se muestran en esta pantalla</translation>
    </message>
    <message>
        <source>Keystrokes will be not shown on this display</source>
        <translation>Las teclas no se muestran en esta pantalla</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Edit custom position</source>
        <translation>Editar la posición personalizada</translation>
    </message>
</context>
<context>
    <name>EvdevCaptureBackend</name>
    <message>
        <source>Vantrel finds no input devices: the folder %1 does not exist.</source>
        <translation>Vantrel no encuentra dispositivos de entrada: la carpeta %1 no existe.</translation>
    </message>
    <message>
        <source>You are in the input group, but this session began before you joined it: log out and back in.</source>
        <translation>Estás en el grupo input, pero esta sesión empezó antes: cierra la sesión y vuelve a entrar.</translation>
    </message>
    <message>
        <source>Vantrel cannot read the input devices in %1 (permission denied).</source>
        <translation>Vantrel no puede leer los dispositivos de entrada de %1 (permiso denegado).</translation>
    </message>
    <message>
        <source>Vantrel finds no keyboard in %1.</source>
        <translation>Vantrel no encuentra ningún teclado en %1.</translation>
    </message>
    <message>
        <source>Choose Allow and give an administrator&apos;s password: Vantrel&apos;s input helper then reads the keyboard until Vantrel quits. If no password dialog appears, start your desktop&apos;s authentication agent and choose Allow again.</source>
        <translation>Elige «Permitir» e introduce una contraseña de administrador: el asistente de entrada de Vantrel leerá el teclado hasta que Vantrel se cierre. Si no aparece ningún diálogo de contraseña, inicia el agente de autenticación del escritorio y vuelve a elegir «Permitir».</translation>
    </message>
    <message>
        <source>Or add yourself to the input group: sudo usermod -aG input $USER. Every program you run can then read every key you type.</source>
        <translation>O únete al grupo input: sudo usermod -aG input $USER. Así, cualquier programa que ejecutes podrá leer todas las teclas que pulses.</translation>
    </message>
    <message>
        <source>Log out and back in, so that the new group applies, then choose Check Again.</source>
        <translation>Cierra la sesión y vuelve a entrar para que se aplique el grupo; después elige «Comprobar de nuevo».</translation>
    </message>
    <message>
        <source>Vantrel&apos;s input helper stopped twice; choose Allow to start it again.</source>
        <translation>El asistente de entrada de Vantrel se detuvo dos veces; elige «Permitir» para iniciarlo de nuevo.</translation>
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
            <numerusform>%Ln tecla</numerusform>
            <numerusform>%Ln teclas</numerusform>
        </translation>
    </message>
    <message>
        <source>App Settings</source>
        <translation>Aplicación</translation>
    </message>
    <message>
        <source>Enable Vantrel</source>
        <translation>Activar Vantrel</translation>
    </message>
    <message>
        <source>Show pressed keys on screen</source>
        <translation>Mostrar las teclas pulsadas en pantalla</translation>
    </message>
    <message>
        <source>Launch at Login</source>
        <translation>Abrir al iniciar sesión</translation>
    </message>
    <message>
        <source>Start Vantrel automatically when you log in</source>
        <translation>Iniciar Vantrel automáticamente al iniciar sesión</translation>
    </message>
    <message>
        <source>Menu Bar Icon</source>
        <translation>Icono de la barra</translation>
    </message>
    <message>
        <source>Choose the icon for the menu bar</source>
        <translation>Elige el icono de la barra de menús</translation>
    </message>
    <message>
        <source>Input Monitoring Access Information</source>
        <translation>Información sobre el acceso al teclado</translation>
    </message>
    <message>
        <source>Input Monitoring Access</source>
        <translation>Acceso al teclado</translation>
    </message>
    <message>
        <source>Required to display your key presses</source>
        <translation>Necesario para mostrar tus pulsaciones</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Visualización</translation>
    </message>
    <message>
        <source>Display Duration</source>
        <translation>Duración en pantalla</translation>
    </message>
    <message>
        <source>Max Keys Displayed</source>
        <translation>Máximo de teclas</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Reset to default display settings</source>
        <translation>Restablecer la visualización predeterminada</translation>
    </message>
    <message>
        <source>Key Types</source>
        <translation>Tipos de teclas</translation>
    </message>
    <message>
        <source>Show All Keys</source>
        <translation>Mostrar todas las teclas</translation>
    </message>
    <message>
        <source>Display every key press</source>
        <translation>Mostrar cada pulsación</translation>
    </message>
    <message>
        <source>Show Modifier Keys</source>
        <translation>Mostrar teclas modificadoras</translation>
    </message>
    <message>
        <source>Show Function Keys</source>
        <translation>Mostrar teclas de función</translation>
    </message>
    <message>
        <source>F1, F2, F3, etc.</source>
        <translation>F1, F2, F3, etc.</translation>
    </message>
    <message>
        <source>Show Special Keys</source>
        <translation>Mostrar teclas especiales</translation>
    </message>
    <message>
        <source>Enter, Tab, Delete, and Escape</source>
        <translation>Intro, Tab, Supr y Esc</translation>
    </message>
    <message>
        <source>Reset to default key type settings</source>
        <translation>Restablecer los tipos de teclas</translation>
    </message>
    <message>
        <source>Mouse Clicks</source>
        <translation>Clics del ratón</translation>
    </message>
    <message>
        <source>Show Mouse Clicks</source>
        <translation>Mostrar clics</translation>
    </message>
    <message>
        <source>Display left and right clicks</source>
        <translation>Mostrar clics izquierdo y derecho</translation>
    </message>
    <message>
        <source>Reset All Settings</source>
        <translation>Restablecer todo</translation>
    </message>
    <message>
        <source>Reset all settings to their default values</source>
        <translation>Restablecer todos los ajustes predeterminados</translation>
    </message>
    <message>
        <source>This action cannot be undone</source>
        <translation>Esta acción no se puede deshacer</translation>
    </message>
    <message>
        <source>Reset All Settings?</source>
        <translation>¿Restablecer todos los ajustes?</translation>
    </message>
    <message>
        <source>Are you sure you want to reset all settings to their default values?</source>
        <translation>¿Seguro que quieres restablecer todos los ajustes a sus valores predeterminados?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>GlobalShortcutNames</name>
    <message>
        <source>Toggle Vantrel</source>
        <translation>Activar/desactivar Vantrel</translation>
    </message>
    <message>
        <source>Increase Key Size</source>
        <translation>Aumentar las teclas</translation>
    </message>
    <message>
        <source>Decrease Key Size</source>
        <translation>Reducir las teclas</translation>
    </message>
    <message>
        <source>Open Position Customizer</source>
        <translation>Personalizar la posición</translation>
    </message>
    <message>
        <source>Toggle Mouse Clicks</source>
        <translation>Mostrar/ocultar clics</translation>
    </message>
</context>
<context>
    <name>InputHelperProcess</name>
    <message>
        <source>The password dialog was closed; Vantrel cannot read the keyboard.</source>
        <translation>Se cerró el diálogo de contraseña; Vantrel no puede leer el teclado.</translation>
    </message>
    <message>
        <source>No authentication agent answered; start your desktop&apos;s authentication agent, then choose Check Again.</source>
        <translation>Ningún agente de autenticación responde; inicia el de tu escritorio y elige «Comprobar de nuevo».</translation>
    </message>
    <message>
        <source>Vantrel&apos;s input helper stopped.</source>
        <translation>El asistente de entrada de Vantrel se detuvo.</translation>
    </message>
</context>
<context>
    <name>InputMonitoringSheet</name>
    <message>
        <source>Input Monitoring</source>
        <translation>Acceso al teclado</translation>
    </message>
    <message>
        <source>Enable Input Monitoring</source>
        <translation>Permitir el acceso al teclado</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>Comprobar de nuevo</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Permitir</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Privacidad</translation>
    </message>
    <message>
        <source>Not covered: a password typed into a terminal (sudo, ssh) has no field to recognise, so it shows like any other typing.</source>
        <translation>No cubierto: una contraseña escrita en un terminal (sudo, ssh) no tiene un campo que reconocer, así que se muestra como cualquier otro texto.</translation>
    </message>
    <message>
        <source>%1: on.</source>
        <translation>%1: funcionando.</translation>
    </message>
    <message>
        <source>%1: off.</source>
        <translation>%1: sin funcionar.</translation>
    </message>
    <message>
        <source>Keys are not hidden anywhere: no protection is running.</source>
        <translation>No se oculta ninguna tecla: no hay ninguna protección funcionando.</translation>
    </message>
</context>
<context>
    <name>KeyShortcutsSettingsView</name>
    <message>
        <source>Global Shortcuts</source>
        <translation>Atajos globales</translation>
    </message>
    <message>
        <source>This desktop lets you bind keys to Vantrel&apos;s commands in its keyboard settings</source>
        <translation>En este escritorio, asigna atajos a los comandos de Vantrel en los ajustes del teclado</translation>
    </message>
</context>
<context>
    <name>KeyStylePreview</name>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>KeyboardShortcutRecorder</name>
    <message>
        <source>Clear Shortcut</source>
        <translation>Borrar el atajo</translation>
    </message>
    <message>
        <source>Use at least one of Ctrl, Alt and Super, or a function key</source>
        <translation>Usa al menos Ctrl, Alt o Super, o una tecla de función</translation>
    </message>
    <message>
        <source>%1 is already used by another program</source>
        <translation>%1 ya lo usa otro programa</translation>
    </message>
    <message>
        <source>%1 is already used by another shortcut</source>
        <translation>%1 ya está asignado a otro atajo</translation>
    </message>
    <message>
        <source>%1 cannot be used on this keyboard</source>
        <translation>%1 no se puede usar en este teclado</translation>
    </message>
    <message>
        <source>Press Shortcut</source>
        <translation>Pulsa el atajo</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>Grabar atajo</translation>
    </message>
</context>
<context>
    <name>LogindLockWatcher</name>
    <message>
        <source>There is no system bus to ask the login manager (logind).</source>
        <translation>No hay bus del sistema para preguntar al gestor de sesiones (logind).</translation>
    </message>
    <message>
        <source>The login manager (logind) does not answer.</source>
        <translation>El gestor de sesiones (logind) no responde.</translation>
    </message>
    <message>
        <source>The login manager (logind) knows no session of yours.</source>
        <translation>El gestor de sesiones (logind) no conoce ninguna sesión tuya.</translation>
    </message>
    <message>
        <source>Nothing is shown while the login manager says this session is locked.</source>
        <translation>No se muestra nada mientras el gestor de sesiones indica que esta sesión está bloqueada.</translation>
    </message>
</context>
<context>
    <name>MouseClickIndicatorView</name>
    <message>
        <source>Left mouse click</source>
        <translation>Clic izquierdo</translation>
    </message>
    <message>
        <source>Right mouse click</source>
        <translation>Clic derecho</translation>
    </message>
</context>
<context>
    <name>PermissionStatusView</name>
    <message>
        <source>Granted</source>
        <translation>Concedido</translation>
    </message>
    <message>
        <source>Not Granted</source>
        <translation>No concedido</translation>
    </message>
</context>
<context>
    <name>Platform</name>
    <message>
        <source>VANTREL_OVERLAY must be &quot;x11&quot; or &quot;wayland&quot;, not &quot;%1&quot;</source>
        <translation>VANTREL_OVERLAY debe ser «x11» o «wayland», no «%1»</translation>
    </message>
    <message>
        <source>no Wayland compositor with the layer shell answers (VANTREL_OVERLAY=wayland needs one)</source>
        <translation>no responde ningún compositor Wayland con layer shell (VANTREL_OVERLAY=wayland lo necesita)</translation>
    </message>
    <message>
        <source>no display for the overlays: the Wayland compositor offers no layer shell and DISPLAY is not set (no XWayland)</source>
        <translation>no hay dónde mostrar las superposiciones: el compositor Wayland no ofrece layer shell y DISPLAY no está definido (sin XWayland)</translation>
    </message>
    <message>
        <source>no X11 display: DISPLAY is not set (Vantrel needs an X11 desktop)</source>
        <translation>no hay pantalla X11: DISPLAY no está definido (Vantrel necesita un escritorio X11)</translation>
    </message>
    <message>
        <source>cannot open X11 display &quot;%1&quot;</source>
        <translation>no se puede abrir la pantalla X11 «%1»</translation>
    </message>
</context>
<context>
    <name>PositionCustomizerHeader</name>
    <message>
        <source>Drag to Position</source>
        <translation>Arrastra para colocar</translation>
    </message>
    <message>
        <source>Drag the key display to your desired location. Click anywhere to save or press Escape to ignore changes.</source>
        <translation>Arrastra las teclas a donde quieras. Haz clic en cualquier lugar para guardar o pulsa Esc para descartar.</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ocultar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
</context>
<context>
    <name>PositionCustomizerWindowController</name>
    <message>
        <source>Drag to Position</source>
        <translation>Arrastra para colocar</translation>
    </message>
</context>
<context>
    <name>SavePresetDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Guardar estilo</translation>
    </message>
    <message>
        <source>Preset Name</source>
        <translation>Nombre del estilo</translation>
    </message>
</context>
<context>
    <name>ScreenSaverLockWatcher</name>
    <message>
        <source>There is no session bus to hear the screen locker on.</source>
        <translation>No hay bus de sesión en el que escuchar el bloqueo de pantalla.</translation>
    </message>
    <message>
        <source>Nothing is shown while the screen locker is active.</source>
        <translation>No se muestra nada mientras el bloqueo de pantalla está activo.</translation>
    </message>
</context>
<context>
    <name>Secrecy</name>
    <message>
        <source>Locked session</source>
        <translation>Sesión bloqueada</translation>
    </message>
    <message>
        <source>Screen locker</source>
        <translation>Bloqueo de pantalla</translation>
    </message>
    <message>
        <source>X11 screen saver</source>
        <translation>Salvapantallas de X11</translation>
    </message>
    <message>
        <source>Password fields</source>
        <translation>Campos de contraseña</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Vantrel Settings</source>
        <translation>Ajustes de Vantrel</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Appearance settings are not available yet.</source>
        <translation>Los ajustes de apariencia aún no están disponibles.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>Displays</source>
        <translation>Pantallas</translation>
    </message>
    <message>
        <source>Shortcut settings are not available yet.</source>
        <translation>Los ajustes de atajos aún no están disponibles.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Atajos</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
</context>
<context>
    <name>TrayMenu</name>
    <message>
        <source>Increase Key Size</source>
        <translation>Aumentar las teclas</translation>
    </message>
    <message>
        <source>Decrease Key Size</source>
        <translation>Reducir las teclas</translation>
    </message>
    <message>
        <source>Open Position Customizer</source>
        <translation>Personalizar la posición</translation>
    </message>
    <message>
        <source>Toggle Mouse Clicks</source>
        <translation>Mostrar/ocultar clics</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Ajustes…</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>FAQ</source>
        <translation>Preguntas frecuentes</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Soporte</translation>
    </message>
    <message>
        <source>Social</source>
        <translation>Redes sociales</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Sitio web</translation>
    </message>
    <message>
        <source>Suggest Idea</source>
        <translation>Sugerir una idea</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Más apps</translation>
    </message>
    <message>
        <source>Quit Vantrel</source>
        <translation>Salir de Vantrel</translation>
    </message>
    <message>
        <source>Stop Vantrel</source>
        <translation>Detener Vantrel</translation>
    </message>
    <message>
        <source>Start Vantrel</source>
        <translation>Iniciar Vantrel</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>The update server answered with HTTP error %1%2.</source>
        <translation>El servidor de actualizaciones respondió con el error HTTP %1%2.</translation>
    </message>
    <message>
        <source>The update server did not answer within %1 seconds.</source>
        <translation>El servidor de actualizaciones no respondió en %1 segundos.</translation>
    </message>
    <message>
        <source>Could not reach the update server (%1). Check that you are online and try again.</source>
        <translation>No se pudo contactar con el servidor de actualizaciones (%1). Comprueba tu conexión e inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>The update check failed: %1.</source>
        <translation>La búsqueda de actualizaciones falló: %1.</translation>
    </message>
    <message>
        <source>The update feed lists no versions.</source>
        <translation>El canal de actualizaciones no incluye versiones.</translation>
    </message>
    <message>
        <source>The update feed is not an RSS feed.</source>
        <translation>El canal de actualizaciones no es un canal RSS.</translation>
    </message>
</context>
<context>
    <name>Utils</name>
    <message>
        <source>Version %1 (Build %2)</source>
        <translation>Versión %1 (compilación %2)</translation>
    </message>
</context>
<context>
    <name>VantrelApp</name>
    <message>
        <source>Start or stop showing keys.</source>
        <translation>Empezar o dejar de mostrar teclas.</translation>
    </message>
    <message>
        <source>Make the key caps larger.</source>
        <translation>Hacer las teclas más grandes.</translation>
    </message>
    <message>
        <source>Make the key caps smaller.</source>
        <translation>Hacer las teclas más pequeñas.</translation>
    </message>
    <message>
        <source>Drag the key row to a place of your own.</source>
        <translation>Arrastrar la fila de teclas a donde quieras.</translation>
    </message>
    <message>
        <source>Show or hide mouse clicks.</source>
        <translation>Mostrar u ocultar los clics del ratón.</translation>
    </message>
    <message>
        <source>Open the settings window.</source>
        <translation>Abrir la ventana de ajustes.</translation>
    </message>
    <message>
        <source>Quit Vantrel.</source>
        <translation>Salir de Vantrel.</translation>
    </message>
    <message>
        <source>Usage: vantrel [option]

Shows the keys you press as key caps in a transparent overlay on each enabled
display, for presentations, teaching, streams and screencasts. It lives in the
system tray; starting it again opens the settings of the running Vantrel.

Options:
</source>
        <translation>Uso: vantrel [opción]

Muestra las teclas que pulsas en una superposición transparente en cada pantalla
activada, para presentaciones, clases, streams y screencasts. Vive en la bandeja
del sistema; al iniciarlo de nuevo se abren los ajustes del Vantrel en marcha.

Opciones:
</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>Mostrar esta ayuda y salir.</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>Mostrar la versión y salir.</translation>
    </message>
    <message>
        <source>Remote control of the running Vantrel (bind these to keys of your desktop):</source>
        <translation>Control remoto del Vantrel en marcha (asígnalos a atajos del escritorio):</translation>
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
        <translation>Sesiones:
  X11      teclas del servidor X; las superposiciones son ventanas X11.
  Wayland  teclas de los dispositivos de entrada (/dev/input, o la carpeta de
           VANTREL_INPUT_DIR), nombradas según el teclado del compositor; las
           superposiciones son superficies layer shell si el compositor lo ofrece,
           si no, ventanas X11 mediante XWayland. VANTREL_OVERLAY=wayland o
           VANTREL_OVERLAY=x11 elige una de las dos. Leer los dispositivos requiere
           el grupo input, o «Permitir» en los ajustes (una contraseña de
           administrador inicia vantrel-input-helper mediante pkexec).
</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>Ajustes: %1</translation>
    </message>
    <message>
        <source>Vantrel is not running</source>
        <translation>Vantrel no se está ejecutando</translation>
    </message>
    <message>
        <source>one option at a time, not &apos;%1&apos; (see vantrel --help)</source>
        <translation>una opción cada vez, no «%1» (consulta vantrel --help)</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; (see vantrel --help)</source>
        <translation>opción desconocida «%1» (consulta vantrel --help)</translation>
    </message>
    <message>
        <source>Vantrel is already running; its settings window opens.</source>
        <translation>Vantrel ya se está ejecutando; se abre su ventana de ajustes.</translation>
    </message>
    <message>
        <source>another Vantrel holds the session but does not answer</source>
        <translation>otro Vantrel ocupa la sesión pero no responde</translation>
    </message>
    <message>
        <source>no D-Bus session bus; running alone, without remote control or the one-instance check</source>
        <translation>no hay bus de sesión D-Bus; Vantrel funciona solo, sin control remoto ni comprobación de instancia única</translation>
    </message>
    <message>
        <source>cannot listen to the keyboard: %1</source>
        <translation>no se puede escuchar el teclado: %1</translation>
    </message>
    <message>
        <source>Vantrel is switched off (&quot;Show pressed keys on screen&quot; is off).</source>
        <translation>Vantrel está desactivado («Mostrar las teclas pulsadas en pantalla» está desactivado).</translation>
    </message>
    <message>
        <source>the shortcut %1 of &quot;%2&quot; is already used by another program; it does nothing until that program lets it go</source>
        <translation>el atajo %1 de «%2» ya lo usa otro programa; no hará nada hasta que ese programa lo libere</translation>
    </message>
    <message>
        <source>no system tray found; opening the settings window instead of the tray menu</source>
        <translation>no se encontró la bandeja del sistema; se abre la ventana de ajustes en lugar del menú</translation>
    </message>
    <message>
        <source>Vantrel is showing pressed keys on screen.</source>
        <translation>Vantrel muestra las teclas pulsadas en pantalla.</translation>
    </message>
    <message>
        <source>Vantrel stopped showing pressed keys.</source>
        <translation>Vantrel dejó de mostrar las teclas pulsadas.</translation>
    </message>
    <message>
        <source>Privacy: nothing is shown, keys, modifiers and clicks alike, while the session is
locked (logind, the screen locker&apos;s signals, the X11 screen saver) or while a
password field has the focus (followed on the accessibility bus, AT-SPI2).
Settings &gt; General &gt; Input Monitoring lists which protections are on.
Not covered: a password typed into a terminal (sudo, ssh) has no field to
detect; switch Vantrel off first (vantrel --toggle).
</source>
        <translation>Privacidad: no se muestra nada, ni teclas, ni modificadoras, ni clics, mientras
la sesión está bloqueada (logind, las señales del bloqueo de pantalla, el
salvapantallas de X11) o mientras un campo de contraseña tiene el foco (seguido
en el bus de accesibilidad, AT-SPI2). Ajustes &gt; General &gt; Acceso al teclado
indica qué protecciones están funcionando.
No cubierto: una contraseña escrita en un terminal (sudo, ssh) no tiene campo
que detectar; desactiva Vantrel antes (vantrel --toggle).
</translation>
    </message>
</context>
<context>
    <name>X11CaptureBackend</name>
    <message>
        <source>The X server has no XInput extension; Vantrel needs XInput 2.2.</source>
        <translation>El servidor X no tiene la extensión XInput; Vantrel necesita XInput 2.2.</translation>
    </message>
    <message>
        <source>The X server did not answer the XInput version query.</source>
        <translation>El servidor X no respondió a la consulta de versión de XInput.</translation>
    </message>
    <message>
        <source>The X server offers XInput %1.%2; Vantrel needs XInput 2.2 or newer.</source>
        <translation>El servidor X ofrece XInput %1.%2; Vantrel necesita XInput 2.2 o posterior.</translation>
    </message>
    <message>
        <source>No X display is set (DISPLAY is empty); Vantrel needs an X11 desktop.</source>
        <translation>No hay pantalla X definida (DISPLAY está vacío); Vantrel necesita un escritorio X11.</translation>
    </message>
    <message>
        <source>Vantrel cannot open the X display &quot;%1&quot;.</source>
        <translation>Vantrel no puede abrir la pantalla X «%1».</translation>
    </message>
    <message>
        <source>Log in to an X11 session (Xorg), not a Wayland one.</source>
        <translation>Inicia una sesión X11 (Xorg), no una de Wayland.</translation>
    </message>
    <message>
        <source>Make sure the X server offers XInput 2.2 (every current Xorg does).</source>
        <translation>Comprueba que el servidor X ofrezca XInput 2.2 (todo Xorg actual lo hace).</translation>
    </message>
</context>
<context>
    <name>X11ScreenSaverWatcher</name>
    <message>
        <source>The X server has no screen saver extension (MIT-SCREEN-SAVER).</source>
        <translation>El servidor X no tiene la extensión de salvapantallas (MIT-SCREEN-SAVER).</translation>
    </message>
    <message>
        <source>Nothing is shown while the X11 screen saver or locker is on.</source>
        <translation>No se muestra nada mientras el salvapantallas o el bloqueo de X11 está activo.</translation>
    </message>
</context>
</TS>
