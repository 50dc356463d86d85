<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>AboutSettingsView</name>
    <message>
        <source>Official Website</source>
        <translation>Site oficial</translation>
    </message>
    <message>
        <source>Visit the official Vantrel website</source>
        <translation>Visitar o site oficial do Vantrel</translation>
    </message>
    <message>
        <source>Watch Vantrel videos on YouTube</source>
        <translation>Assistir aos vídeos do Vantrel no YouTube</translation>
    </message>
</context>
<context>
    <name>AddPresetTile</name>
    <message>
        <source>New Preset</source>
        <translation>Novo estilo</translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>Software Update</source>
        <translation>Atualização</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Procurando atualizações…</translation>
    </message>
    <message>
        <source>Asking %1</source>
        <translation>Consultando %1</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>O Vantrel está atualizado!</translation>
    </message>
    <message>
        <source>Vantrel %1 is the newest version available.</source>
        <translation>Vantrel %1 é a versão mais recente.</translation>
    </message>
    <message>
        <source>A new version of Vantrel is available!</source>
        <translation>Uma nova versão do Vantrel está disponível!</translation>
    </message>
    <message>
        <source>Vantrel %1 is available; you have %2.</source>
        <translation>O Vantrel %1 está disponível; você tem o %2.</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Baixar</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Agora não</translation>
    </message>
    <message>
        <source>Vantrel could not check for updates.</source>
        <translation>O Vantrel não conseguiu procurar atualizações.</translation>
    </message>
</context>
<context>
    <name>AppearanceSettingsView</name>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Espaçamento</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidade</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raio dos cantos</translation>
    </message>
    <message>
        <source>Border Width</source>
        <translation>Largura da borda</translation>
    </message>
    <message>
        <source>Shadow Radius</source>
        <translation>Raio da sombra</translation>
    </message>
    <message>
        <source>Glow Radius</source>
        <translation>Raio do brilho</translation>
    </message>
    <message>
        <source>Modern</source>
        <translation>Moderno</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Clássico</translation>
    </message>
    <message>
        <source>Minimal</source>
        <translation>Mínimo</translation>
    </message>
    <message>
        <source>Gaming</source>
        <translation>Gamer</translation>
    </message>
    <message>
        <source>Neon</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhuma</translation>
    </message>
    <message>
        <source>Fade In</source>
        <translation>Esmaecer</translation>
    </message>
    <message>
        <source>Scale In</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Slide In</source>
        <translation>Deslizar</translation>
    </message>
    <message>
        <source>Bounce</source>
        <translation>Quicar</translation>
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
        <translation>Animação</translation>
    </message>
    <message>
        <source>How keys appear on screen</source>
        <translation>Como as teclas aparecem</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Fonte</translation>
    </message>
    <message>
        <source>Choose the font family</source>
        <translation>Escolha a fonte</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Cores</translation>
    </message>
    <message>
        <source>Text Color</source>
        <translation>Cor do texto</translation>
    </message>
    <message>
        <source>Color of the key labels</source>
        <translation>Cor dos rótulos das teclas</translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation>Cor de fundo</translation>
    </message>
    <message>
        <source>Color of the key background</source>
        <translation>Cor do fundo das teclas</translation>
    </message>
    <message>
        <source>Border Color</source>
        <translation>Cor da borda</translation>
    </message>
    <message>
        <source>Color of the key border</source>
        <translation>Cor da borda das teclas</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efeitos</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Sombra</translation>
    </message>
    <message>
        <source>Add drop shadow to keys</source>
        <translation>Adicionar sombra às teclas</translation>
    </message>
    <message>
        <source>Shadow Color</source>
        <translation>Cor da sombra</translation>
    </message>
    <message>
        <source>Color of the drop shadow</source>
        <translation>Cor da sombra projetada</translation>
    </message>
    <message>
        <source>Glow Effect</source>
        <translation>Efeito de brilho</translation>
    </message>
    <message>
        <source>Add glow effect to keys</source>
        <translation>Adicionar brilho às teclas</translation>
    </message>
    <message>
        <source>Glow Color</source>
        <translation>Cor do brilho</translation>
    </message>
    <message>
        <source>Color of the glow effect</source>
        <translation>Cor do efeito de brilho</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Redefinir</translation>
    </message>
    <message>
        <source>Reset to default appearance settings</source>
        <translation>Redefinir a aparência padrão</translation>
    </message>
</context>
<context>
    <name>AtSpiFocusWatcher</name>
    <message>
        <source>The accessibility bus (AT-SPI) is not running, so password fields cannot be recognised.</source>
        <translation>O barramento de acessibilidade (AT-SPI) não está em execução, então os campos de senha não podem ser reconhecidos.</translation>
    </message>
    <message>
        <source>There is no session bus to find the accessibility bus on.</source>
        <translation>Não há barramento de sessão para encontrar o barramento de acessibilidade.</translation>
    </message>
    <message>
        <source>Nothing is shown while a password field has the focus.</source>
        <translation>Nada é mostrado enquanto um campo de senha tem o foco.</translation>
    </message>
</context>
<context>
    <name>DisplaySettingsView</name>
    <message>
        <source>Top Left</source>
        <translation>Superior esquerdo</translation>
    </message>
    <message>
        <source>Top Center</source>
        <translation>Superior central</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>Superior direito</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>Inferior esquerdo</translation>
    </message>
    <message>
        <source>Bottom Center</source>
        <translation>Inferior central</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>Inferior direito</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizada</translation>
    </message>
    <message>
        <source>Connected Displays</source>
        <translation>Telas conectadas</translation>
    </message>
    <message>
        <source>No displays detected</source>
        <translation>Nenhuma tela detectada</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Procurar de novo</translation>
    </message>
    <message>
        <source>Refresh the list of connected displays</source>
        <translation>Atualizar a lista de telas conectadas</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Redefinir</translation>
    </message>
    <message>
        <source>Reset display settings to defaults</source>
        <translation>Redefinir as configurações das telas</translation>
    </message>
    <message>
        <source>Keystrokes will be shown on this display</source>
        <translation>As teclas aparecem nesta tela</translation>
    </message>
    <message>
        <source>Keystrokes will be not shown on this display</source>
        <translation>As teclas não aparecem nesta tela</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posição</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Edit custom position</source>
        <translation>Editar a posição personalizada</translation>
    </message>
</context>
<context>
    <name>EvdevCaptureBackend</name>
    <message>
        <source>Vantrel finds no input devices: the folder %1 does not exist.</source>
        <translation>O Vantrel não encontra dispositivos de entrada: a pasta %1 não existe.</translation>
    </message>
    <message>
        <source>You are in the input group, but this session began before you joined it: log out and back in.</source>
        <translation>Você está no grupo input, mas esta sessão começou antes: saia e entre de novo.</translation>
    </message>
    <message>
        <source>Vantrel cannot read the input devices in %1 (permission denied).</source>
        <translation>O Vantrel não consegue ler os dispositivos de entrada em %1 (permissão negada).</translation>
    </message>
    <message>
        <source>Vantrel finds no keyboard in %1.</source>
        <translation>O Vantrel não encontra nenhum teclado em %1.</translation>
    </message>
    <message>
        <source>Choose Allow and give an administrator&apos;s password: Vantrel&apos;s input helper then reads the keyboard until Vantrel quits. If no password dialog appears, start your desktop&apos;s authentication agent and choose Allow again.</source>
        <translation>Escolha “Permitir” e digite uma senha de administrador: o auxiliar de entrada do Vantrel lerá o teclado até o Vantrel ser fechado. Se nenhuma janela de senha aparecer, inicie o agente de autenticação da área de trabalho e escolha “Permitir” de novo.</translation>
    </message>
    <message>
        <source>Or add yourself to the input group: sudo usermod -aG input $USER. Every program you run can then read every key you type.</source>
        <translation>Ou entre no grupo input: sudo usermod -aG input $USER. Assim, qualquer programa que você executar poderá ler todas as teclas que você digitar.</translation>
    </message>
    <message>
        <source>Log out and back in, so that the new group applies, then choose Check Again.</source>
        <translation>Saia e entre de novo para o grupo valer e escolha “Verificar de novo”.</translation>
    </message>
    <message>
        <source>Vantrel&apos;s input helper stopped twice; choose Allow to start it again.</source>
        <translation>O auxiliar de entrada do Vantrel parou duas vezes; escolha “Permitir” para iniciá-lo de novo.</translation>
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
        <translation>Aplicativo</translation>
    </message>
    <message>
        <source>Enable Vantrel</source>
        <translation>Ativar o Vantrel</translation>
    </message>
    <message>
        <source>Show pressed keys on screen</source>
        <translation>Mostrar as teclas pressionadas na tela</translation>
    </message>
    <message>
        <source>Launch at Login</source>
        <translation>Abrir ao iniciar sessão</translation>
    </message>
    <message>
        <source>Start Vantrel automatically when you log in</source>
        <translation>Iniciar o Vantrel automaticamente ao entrar</translation>
    </message>
    <message>
        <source>Menu Bar Icon</source>
        <translation>Ícone na barra</translation>
    </message>
    <message>
        <source>Choose the icon for the menu bar</source>
        <translation>Escolha o ícone da barra de menus</translation>
    </message>
    <message>
        <source>Input Monitoring Access Information</source>
        <translation>Informações sobre o acesso ao teclado</translation>
    </message>
    <message>
        <source>Input Monitoring Access</source>
        <translation>Acesso ao teclado</translation>
    </message>
    <message>
        <source>Required to display your key presses</source>
        <translation>Necessário para mostrar suas teclas</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Exibição</translation>
    </message>
    <message>
        <source>Display Duration</source>
        <translation>Tempo de exibição</translation>
    </message>
    <message>
        <source>Max Keys Displayed</source>
        <translation>Máximo de teclas</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Redefinir</translation>
    </message>
    <message>
        <source>Reset to default display settings</source>
        <translation>Redefinir a exibição padrão</translation>
    </message>
    <message>
        <source>Key Types</source>
        <translation>Tipos de teclas</translation>
    </message>
    <message>
        <source>Show All Keys</source>
        <translation>Mostrar todas as teclas</translation>
    </message>
    <message>
        <source>Display every key press</source>
        <translation>Mostrar cada tecla pressionada</translation>
    </message>
    <message>
        <source>Show Modifier Keys</source>
        <translation>Mostrar teclas modificadoras</translation>
    </message>
    <message>
        <source>Show Function Keys</source>
        <translation>Mostrar teclas de função</translation>
    </message>
    <message>
        <source>F1, F2, F3, etc.</source>
        <translation>F1, F2, F3 etc.</translation>
    </message>
    <message>
        <source>Show Special Keys</source>
        <translation>Mostrar teclas especiais</translation>
    </message>
    <message>
        <source>Enter, Tab, Delete, and Escape</source>
        <translation>Enter, Tab, Delete e Esc</translation>
    </message>
    <message>
        <source>Reset to default key type settings</source>
        <translation>Redefinir os tipos de teclas</translation>
    </message>
    <message>
        <source>Mouse Clicks</source>
        <translation>Cliques do mouse</translation>
    </message>
    <message>
        <source>Show Mouse Clicks</source>
        <translation>Mostrar cliques</translation>
    </message>
    <message>
        <source>Display left and right clicks</source>
        <translation>Mostrar cliques esquerdo e direito</translation>
    </message>
    <message>
        <source>Reset All Settings</source>
        <translation>Redefinir tudo</translation>
    </message>
    <message>
        <source>Reset all settings to their default values</source>
        <translation>Redefinir todas as configurações para o padrão</translation>
    </message>
    <message>
        <source>This action cannot be undone</source>
        <translation>Esta ação não pode ser desfeita</translation>
    </message>
    <message>
        <source>Reset All Settings?</source>
        <translation>Redefinir todas as configurações?</translation>
    </message>
    <message>
        <source>Are you sure you want to reset all settings to their default values?</source>
        <translation>Tem certeza de que deseja redefinir todas as configurações para o padrão?</translation>
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
        <translation>Ativar/desativar o Vantrel</translation>
    </message>
    <message>
        <source>Increase Key Size</source>
        <translation>Aumentar as teclas</translation>
    </message>
    <message>
        <source>Decrease Key Size</source>
        <translation>Diminuir as teclas</translation>
    </message>
    <message>
        <source>Open Position Customizer</source>
        <translation>Personalizar a posição</translation>
    </message>
    <message>
        <source>Toggle Mouse Clicks</source>
        <translation>Mostrar/ocultar cliques</translation>
    </message>
</context>
<context>
    <name>InputHelperProcess</name>
    <message>
        <source>The password dialog was closed; Vantrel cannot read the keyboard.</source>
        <translation>A janela de senha foi fechada; o Vantrel não consegue ler o teclado.</translation>
    </message>
    <message>
        <source>No authentication agent answered; start your desktop&apos;s authentication agent, then choose Check Again.</source>
        <translation>Nenhum agente de autenticação respondeu; inicie o da sua área de trabalho e escolha “Verificar de novo”.</translation>
    </message>
    <message>
        <source>Vantrel&apos;s input helper stopped.</source>
        <translation>O auxiliar de entrada do Vantrel parou.</translation>
    </message>
</context>
<context>
    <name>InputMonitoringSheet</name>
    <message>
        <source>Input Monitoring</source>
        <translation>Acesso ao teclado</translation>
    </message>
    <message>
        <source>Enable Input Monitoring</source>
        <translation>Permitir o acesso ao teclado</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>Verificar de novo</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Permitir</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Privacidade</translation>
    </message>
    <message>
        <source>Not covered: a password typed into a terminal (sudo, ssh) has no field to recognise, so it shows like any other typing.</source>
        <translation>Não coberto: uma senha digitada num terminal (sudo, ssh) não tem campo a reconhecer, então aparece como qualquer outra digitação.</translation>
    </message>
    <message>
        <source>%1: on.</source>
        <translation>%1: funcionando.</translation>
    </message>
    <message>
        <source>%1: off.</source>
        <translation>%1: sem funcionar.</translation>
    </message>
    <message>
        <source>Keys are not hidden anywhere: no protection is running.</source>
        <translation>Nenhuma tecla é ocultada: nenhuma proteção está funcionando.</translation>
    </message>
</context>
<context>
    <name>KeyShortcutsSettingsView</name>
    <message>
        <source>Global Shortcuts</source>
        <translation>Atalhos globais</translation>
    </message>
    <message>
        <source>This desktop lets you bind keys to Vantrel&apos;s commands in its keyboard settings</source>
        <translation>Nesta área de trabalho, associe atalhos aos comandos do Vantrel nas configurações de teclado</translation>
    </message>
</context>
<context>
    <name>KeyStylePreview</name>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
</context>
<context>
    <name>KeyboardShortcutRecorder</name>
    <message>
        <source>Clear Shortcut</source>
        <translation>Limpar o atalho</translation>
    </message>
    <message>
        <source>Use at least one of Ctrl, Alt and Super, or a function key</source>
        <translation>Use pelo menos Ctrl, Alt ou Super, ou uma tecla de função</translation>
    </message>
    <message>
        <source>%1 is already used by another program</source>
        <translation>%1 já é usado por outro programa</translation>
    </message>
    <message>
        <source>%1 is already used by another shortcut</source>
        <translation>%1 já está em outro atalho</translation>
    </message>
    <message>
        <source>%1 cannot be used on this keyboard</source>
        <translation>%1 não pode ser usado neste teclado</translation>
    </message>
    <message>
        <source>Press Shortcut</source>
        <translation>Pressione o atalho</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>Gravar atalho</translation>
    </message>
</context>
<context>
    <name>LogindLockWatcher</name>
    <message>
        <source>There is no system bus to ask the login manager (logind).</source>
        <translation>Não há barramento do sistema para consultar o gerenciador de login (logind).</translation>
    </message>
    <message>
        <source>The login manager (logind) does not answer.</source>
        <translation>O gerenciador de login (logind) não responde.</translation>
    </message>
    <message>
        <source>The login manager (logind) knows no session of yours.</source>
        <translation>O gerenciador de login (logind) não conhece nenhuma sessão sua.</translation>
    </message>
    <message>
        <source>Nothing is shown while the login manager says this session is locked.</source>
        <translation>Nada é mostrado enquanto o gerenciador de login diz que esta sessão está bloqueada.</translation>
    </message>
</context>
<context>
    <name>MouseClickIndicatorView</name>
    <message>
        <source>Left mouse click</source>
        <translation>Clique esquerdo</translation>
    </message>
    <message>
        <source>Right mouse click</source>
        <translation>Clique direito</translation>
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
        <translation>Não concedido</translation>
    </message>
</context>
<context>
    <name>Platform</name>
    <message>
        <source>VANTREL_OVERLAY must be &quot;x11&quot; or &quot;wayland&quot;, not &quot;%1&quot;</source>
        <translation>VANTREL_OVERLAY deve ser “x11” ou “wayland”, não “%1”</translation>
    </message>
    <message>
        <source>no Wayland compositor with the layer shell answers (VANTREL_OVERLAY=wayland needs one)</source>
        <translation>nenhum compositor Wayland com layer shell responde (VANTREL_OVERLAY=wayland precisa de um)</translation>
    </message>
    <message>
        <source>no display for the overlays: the Wayland compositor offers no layer shell and DISPLAY is not set (no XWayland)</source>
        <translation>nenhuma exibição para as sobreposições: o compositor Wayland não oferece layer shell e DISPLAY não está definido (sem XWayland)</translation>
    </message>
    <message>
        <source>no X11 display: DISPLAY is not set (Vantrel needs an X11 desktop)</source>
        <translation>nenhuma tela X11: DISPLAY não está definido (o Vantrel precisa de uma área de trabalho X11)</translation>
    </message>
    <message>
        <source>cannot open X11 display &quot;%1&quot;</source>
        <translation>não é possível abrir a tela X11 “%1”</translation>
    </message>
</context>
<context>
    <name>PositionCustomizerHeader</name>
    <message>
        <source>Drag to Position</source>
        <translation>Arraste para posicionar</translation>
    </message>
    <message>
        <source>Drag the key display to your desired location. Click anywhere to save or press Escape to ignore changes.</source>
        <translation>Arraste as teclas para onde quiser. Clique em qualquer lugar para salvar ou pressione Esc para descartar.</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ocultar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
</context>
<context>
    <name>PositionCustomizerWindowController</name>
    <message>
        <source>Drag to Position</source>
        <translation>Arraste para posicionar</translation>
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
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Salvar estilo</translation>
    </message>
    <message>
        <source>Preset Name</source>
        <translation>Nome do estilo</translation>
    </message>
</context>
<context>
    <name>ScreenSaverLockWatcher</name>
    <message>
        <source>There is no session bus to hear the screen locker on.</source>
        <translation>Não há barramento de sessão para ouvir o bloqueio de tela.</translation>
    </message>
    <message>
        <source>Nothing is shown while the screen locker is active.</source>
        <translation>Nada é mostrado enquanto o bloqueio de tela está ativo.</translation>
    </message>
</context>
<context>
    <name>Secrecy</name>
    <message>
        <source>Locked session</source>
        <translation>Sessão bloqueada</translation>
    </message>
    <message>
        <source>Screen locker</source>
        <translation>Bloqueio de tela</translation>
    </message>
    <message>
        <source>X11 screen saver</source>
        <translation>Proteção de tela do X11</translation>
    </message>
    <message>
        <source>Password fields</source>
        <translation>Campos de senha</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Vantrel Settings</source>
        <translation>Configurações do Vantrel</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Appearance settings are not available yet.</source>
        <translation>As configurações de aparência ainda não estão disponíveis.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aparência</translation>
    </message>
    <message>
        <source>Displays</source>
        <translation>Telas</translation>
    </message>
    <message>
        <source>Shortcut settings are not available yet.</source>
        <translation>As configurações de atalhos ainda não estão disponíveis.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Atalhos</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
</context>
<context>
    <name>TrayMenu</name>
    <message>
        <source>Increase Key Size</source>
        <translation>Aumentar as teclas</translation>
    </message>
    <message>
        <source>Decrease Key Size</source>
        <translation>Diminuir as teclas</translation>
    </message>
    <message>
        <source>Open Position Customizer</source>
        <translation>Personalizar a posição</translation>
    </message>
    <message>
        <source>Toggle Mouse Clicks</source>
        <translation>Mostrar/ocultar cliques</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Configurações…</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>FAQ</source>
        <translation>Perguntas frequentes</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Suporte</translation>
    </message>
    <message>
        <source>Social</source>
        <translation>Redes sociais</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>Procurar atualizações…</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>Suggest Idea</source>
        <translation>Sugerir ideia</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Mais apps</translation>
    </message>
    <message>
        <source>Quit Vantrel</source>
        <translation>Sair do Vantrel</translation>
    </message>
    <message>
        <source>Stop Vantrel</source>
        <translation>Parar o Vantrel</translation>
    </message>
    <message>
        <source>Start Vantrel</source>
        <translation>Iniciar o Vantrel</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>The update server answered with HTTP error %1%2.</source>
        <translation>O servidor de atualizações respondeu com o erro HTTP %1%2.</translation>
    </message>
    <message>
        <source>The update server did not answer within %1 seconds.</source>
        <translation>O servidor de atualizações não respondeu em %1 segundos.</translation>
    </message>
    <message>
        <source>Could not reach the update server (%1). Check that you are online and try again.</source>
        <translation>Não foi possível acessar o servidor de atualizações (%1). Verifique sua conexão e tente de novo.</translation>
    </message>
    <message>
        <source>The update check failed: %1.</source>
        <translation>A procura de atualizações falhou: %1.</translation>
    </message>
    <message>
        <source>The update feed lists no versions.</source>
        <translation>O feed de atualizações não lista versões.</translation>
    </message>
    <message>
        <source>The update feed is not an RSS feed.</source>
        <translation>O feed de atualizações não é um feed RSS.</translation>
    </message>
</context>
<context>
    <name>Utils</name>
    <message>
        <source>Version %1 (Build %2)</source>
        <translation>Versão %1 (build %2)</translation>
    </message>
</context>
<context>
    <name>VantrelApp</name>
    <message>
        <source>Start or stop showing keys.</source>
        <translation>Começar ou parar de mostrar teclas.</translation>
    </message>
    <message>
        <source>Make the key caps larger.</source>
        <translation>Aumentar as teclas.</translation>
    </message>
    <message>
        <source>Make the key caps smaller.</source>
        <translation>Diminuir as teclas.</translation>
    </message>
    <message>
        <source>Drag the key row to a place of your own.</source>
        <translation>Arrastar a fileira de teclas para onde quiser.</translation>
    </message>
    <message>
        <source>Show or hide mouse clicks.</source>
        <translation>Mostrar ou ocultar os cliques do mouse.</translation>
    </message>
    <message>
        <source>Open the settings window.</source>
        <translation>Abrir a janela de configurações.</translation>
    </message>
    <message>
        <source>Quit Vantrel.</source>
        <translation>Sair do Vantrel.</translation>
    </message>
    <message>
        <source>Usage: vantrel [option]

Shows the keys you press as key caps in a transparent overlay on each enabled
display, for presentations, teaching, streams and screencasts. It lives in the
system tray; starting it again opens the settings of the running Vantrel.

Options:
</source>
        <translation>Uso: vantrel [opção]

Mostra as teclas pressionadas numa sobreposição transparente em cada tela ativada,
para apresentações, aulas, streams e screencasts. Fica na bandeja do sistema;
iniciá-lo de novo abre as configurações do Vantrel em execução.

Opções:
</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>Mostrar esta ajuda e sair.</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>Mostrar a versão e sair.</translation>
    </message>
    <message>
        <source>Remote control of the running Vantrel (bind these to keys of your desktop):</source>
        <translation>Controle remoto do Vantrel em execução (associe-os a atalhos da área de trabalho):</translation>
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
        <translation>Sessões:
  X11      teclas do servidor X; as sobreposições são janelas X11.
  Wayland  teclas dos dispositivos de entrada (/dev/input, ou a pasta indicada por
           VANTREL_INPUT_DIR), nomeadas pelo teclado do compositor; as
           sobreposições são superfícies layer shell se o compositor oferecer,
           senão janelas X11 via XWayland. VANTREL_OVERLAY=wayland ou
           VANTREL_OVERLAY=x11 escolhe uma das duas. Ler os dispositivos exige o
           grupo input, ou “Permitir” nas configurações (uma senha de
           administrador inicia o vantrel-input-helper via pkexec).
</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>Configurações: %1</translation>
    </message>
    <message>
        <source>Vantrel is not running</source>
        <translation>O Vantrel não está em execução</translation>
    </message>
    <message>
        <source>one option at a time, not &apos;%1&apos; (see vantrel --help)</source>
        <translation>uma opção por vez, não “%1” (veja vantrel --help)</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; (see vantrel --help)</source>
        <translation>opção desconhecida “%1” (veja vantrel --help)</translation>
    </message>
    <message>
        <source>Vantrel is already running; its settings window opens.</source>
        <translation>O Vantrel já está em execução; a janela de configurações será aberta.</translation>
    </message>
    <message>
        <source>another Vantrel holds the session but does not answer</source>
        <translation>outro Vantrel ocupa a sessão, mas não responde</translation>
    </message>
    <message>
        <source>no D-Bus session bus; running alone, without remote control or the one-instance check</source>
        <translation>sem barramento de sessão D-Bus; o Vantrel roda sozinho, sem controle remoto nem verificação de instância única</translation>
    </message>
    <message>
        <source>cannot listen to the keyboard: %1</source>
        <translation>não é possível ler o teclado: %1</translation>
    </message>
    <message>
        <source>Vantrel is switched off (&quot;Show pressed keys on screen&quot; is off).</source>
        <translation>O Vantrel está desligado (“Mostrar as teclas pressionadas na tela” está desativado).</translation>
    </message>
    <message>
        <source>the shortcut %1 of &quot;%2&quot; is already used by another program; it does nothing until that program lets it go</source>
        <translation>o atalho %1 de “%2” já é usado por outro programa; ele não fará nada até esse programa liberá-lo</translation>
    </message>
    <message>
        <source>no system tray found; opening the settings window instead of the tray menu</source>
        <translation>nenhuma bandeja do sistema encontrada; a janela de configurações abre no lugar do menu</translation>
    </message>
    <message>
        <source>Vantrel is showing pressed keys on screen.</source>
        <translation>O Vantrel está mostrando as teclas pressionadas na tela.</translation>
    </message>
    <message>
        <source>Vantrel stopped showing pressed keys.</source>
        <translation>O Vantrel parou de mostrar as teclas pressionadas.</translation>
    </message>
    <message>
        <source>Privacy: nothing is shown, keys, modifiers and clicks alike, while the session is
locked (logind, the screen locker&apos;s signals, the X11 screen saver) or while a
password field has the focus (followed on the accessibility bus, AT-SPI2).
Settings &gt; General &gt; Input Monitoring lists which protections are on.
Not covered: a password typed into a terminal (sudo, ssh) has no field to
detect; switch Vantrel off first (vantrel --toggle).
</source>
        <translation>Privacidade: nada é mostrado, nem teclas, nem modificadoras, nem cliques,
enquanto a sessão está bloqueada (logind, os sinais do bloqueio de tela, a
proteção de tela do X11) ou enquanto um campo de senha tem o foco (seguido no
barramento de acessibilidade, AT-SPI2). Configurações &gt; Geral &gt; Acesso ao
teclado mostra quais proteções estão funcionando.
Não coberto: uma senha digitada num terminal (sudo, ssh) não tem campo a
detectar; desligue o Vantrel antes (vantrel --toggle).
</translation>
    </message>
</context>
<context>
    <name>X11CaptureBackend</name>
    <message>
        <source>The X server has no XInput extension; Vantrel needs XInput 2.2.</source>
        <translation>O servidor X não tem a extensão XInput; o Vantrel precisa do XInput 2.2.</translation>
    </message>
    <message>
        <source>The X server did not answer the XInput version query.</source>
        <translation>O servidor X não respondeu à consulta de versão do XInput.</translation>
    </message>
    <message>
        <source>The X server offers XInput %1.%2; Vantrel needs XInput 2.2 or newer.</source>
        <translation>O servidor X oferece o XInput %1.%2; o Vantrel precisa do XInput 2.2 ou mais recente.</translation>
    </message>
    <message>
        <source>No X display is set (DISPLAY is empty); Vantrel needs an X11 desktop.</source>
        <translation>Nenhuma tela X definida (DISPLAY está vazio); o Vantrel precisa de uma área de trabalho X11.</translation>
    </message>
    <message>
        <source>Vantrel cannot open the X display &quot;%1&quot;.</source>
        <translation>O Vantrel não consegue abrir a tela X “%1”.</translation>
    </message>
    <message>
        <source>Log in to an X11 session (Xorg), not a Wayland one.</source>
        <translation>Entre numa sessão X11 (Xorg), não numa sessão Wayland.</translation>
    </message>
    <message>
        <source>Make sure the X server offers XInput 2.2 (every current Xorg does).</source>
        <translation>Verifique se o servidor X oferece o XInput 2.2 (todo Xorg atual oferece).</translation>
    </message>
</context>
<context>
    <name>X11ScreenSaverWatcher</name>
    <message>
        <source>The X server has no screen saver extension (MIT-SCREEN-SAVER).</source>
        <translation>O servidor X não tem a extensão de proteção de tela (MIT-SCREEN-SAVER).</translation>
    </message>
    <message>
        <source>Nothing is shown while the X11 screen saver or locker is on.</source>
        <translation>Nada é mostrado enquanto a proteção de tela ou o bloqueio do X11 está ativo.</translation>
    </message>
</context>
</TS>
