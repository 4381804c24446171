<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Boas-vindas ao assistente de instalação do [ProductName]</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>Iniciar o [ProductName] agora</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Pastas partilhadas</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Todos os ficheiros estão atualizados.</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>A processar...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>O assistente de instalação está pronto para iniciar a instalação.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome do ficheiro</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Modo de ligação</translation>
    </message>
    <message>
        <source>The local database is damaged. Disconnect from the server, then reconnect to rebuild the database. Details are in ~/.Quillmere/log.</source>
        <translation>A base de dados local está danificada. Desligue-se do servidor e volte a ligar-se para reconstruir a base de dados. Os detalhes estão em ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>&amp;Close the applications and restart them after setup</source>
        <translation>&amp;Fechar as aplicações e reiniciá-las após a instalação</translation>
    </message>
    <message>
        <source>The folder is a mount point. Choose a folder that is not a mount point.</source>
        <translation>A pasta é um ponto de montagem. Escolha uma pasta que não seja um ponto de montagem.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Pronto para remover o [ProductName]</translation>
    </message>
    <message>
        <source>The server has been replaced. Click here to reconnect.</source>
        <translation>O servidor foi substituído. Clique aqui para voltar a ligar-se.</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Ficheiros em sincronização neste momento: %1.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change, repair, or remove [ProductName]. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>O assistente de instalação permite alterar, reparar ou remover o [ProductName]. Clique em Seguinte para continuar ou em Cancelar para sair do assistente de instalação.</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Lista de exclusão</translation>
    </message>
    <message>
        <source>Delete this share link?\nPeople who have the link will no longer be able to open the file.</source>
        <translation>Apagar esta hiperligação de partilha?\nQuem tiver a hiperligação deixará de poder abrir o ficheiro.</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server.</source>
        <translation>O Quillmere neste computador é demasiado antigo para funcionar com o servidor.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Instalação do [ProductName]</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Falha ao iniciar sessão</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>A testar a ligação...</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: it may have expired, belong to another server, or come from an unknown issuer. Others may be able to read the data you send. Continue?</source>
        <translation>O certificado do servidor não é de confiança: pode ter expirado, pertencer a outro servidor ou provir de um emissor desconhecido. Outras pessoas poderão conseguir ler os dados que envia. Continuar?</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nova pasta partilhada</translation>
    </message>
    <message>
        <source>About Quillmere</source>
        <translation>Acerca do Quillmere</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done.</source>
        <translation>Verifique as definições abaixo e clique em Concluído.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Im&amp;primir</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the removal.</source>
        <translation>O assistente de instalação está pronto para iniciar a remoção.</translation>
    </message>
    <message>
        <source>This computer is already connected to this server. Edit the existing connection, or enter another server.</source>
        <translation>Este computador já está ligado a este servidor. Edite a ligação existente ou introduza outro servidor.</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Histórico de transferências</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Check the network connection, then try again.</source>
        <translation>Perdeu-se a ligação ao servidor. Verifique a ligação de rede e tente novamente.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified.</source>
        <translation>Não foi possível verificar o certificado do servidor.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Utilizar um ícone a preto e branco na área de notificação</translation>
    </message>
    <message>
        <source>The files in this folder will be synced with the server.</source>
        <translation>Os ficheiros desta pasta serão sincronizados com o servidor.</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>O servidor proxy requer início de sessão</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Tarefas de sincronização</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Ficheiros excluídos</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Sem permissão</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer. Ask the server administrator to upgrade it.</source>
        <translation>O Quillmere no servidor é demasiado antigo para funcionar com este computador. Peça ao administrador do servidor que o atualize.</translation>
    </message>
    <message>
        <source>You can run setup again at any time. Click Finish to exit the Setup Wizard.</source>
        <translation>Pode voltar a executar o programa de instalação em qualquer altura. Clique em Terminar para sair do assistente de instalação.</translation>
    </message>
    <message>
        <source>The connection to the server is unstable.</source>
        <translation>A ligação ao servidor está instável.</translation>
    </message>
    <message>
        <source>A newer version of Quillmere is already installed. To install this version, remove the newer one first.</source>
        <translation>Já está instalada uma versão mais recente do Quillmere. Para instalar esta versão, remova primeiro a mais recente.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Clique em Reparar para reparar a instalação do [ProductName]. Clique em Recuar para rever as suas opções ou em Cancelar para sair do assistente de instalação.</translation>
    </message>
    <message>
        <source>Some settings have not been saved. Save them?</source>
        <translation>Algumas definições não foram guardadas. Guardá-las?</translation>
    </message>
    <message>
        <source>Icon overlays on files</source>
        <translation>Sobreposições de ícones nos ficheiros</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Ação</translation>
    </message>
    <message>
        <source>This folder is already used by another sync program. Choose another folder to avoid conflicts.</source>
        <translation>Esta pasta já é utilizada por outro programa de sincronização. Escolha outra pasta para evitar conflitos.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Apagar</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Versão incompatível</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Alterar pasta de sincronização</translation>
    </message>
    <message>
        <source>Enter a complete file name without a folder path, for example thumbs.db.</source>
        <translation>Introduza um nome de ficheiro completo, sem o caminho da pasta; por exemplo, thumbs.db.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Setup stopped because of an error. The changes it had made were undone.</source>
        <translation>[DlgTitleFont]O programa de instalação parou devido a um erro. As alterações que tinha efetuado foram anuladas.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Em espera</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>O assistente de instalação vai instalar o [ProductName] no seu computador. Clique em Seguinte para continuar ou em Cancelar para sair do assistente de instalação.</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Problema de sincronização</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Leia atentamente o seguinte contrato de licença.</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>A pasta não está vazia</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Use an encrypted connection (TLS)</source>
        <translation>Utilizar uma ligação encriptada (TLS)</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Alguns ficheiros que têm de ser atualizados estão a ser utilizados.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Só de leitura</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sim</translation>
    </message>
    <message>
        <source>A new version of Quillmere is available. Click here to upgrade.</source>
        <translation>Está disponível uma nova versão do Quillmere. Clique aqui para atualizar.</translation>
    </message>
    <message>
        <source>The download of %1 was canceled.</source>
        <translation>A transferência de %1 foi cancelada.</translation>
    </message>
    <message>
        <source>The value you entered is not valid. Check it, then try again.</source>
        <translation>O valor introduzido não é válido. Verifique-o e tente novamente.</translation>
    </message>
    <message>
        <source>This file has no earlier versions yet. Change the file and let it sync to create one.</source>
        <translation>Este ficheiro ainda não tem versões anteriores. Altere o ficheiro e aguarde que seja sincronizado para criar uma.</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Desligar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Recuar</translation>
    </message>
    <message>
        <source>Quillmere is initializing...</source>
        <translation>A inicializar o Quillmere...</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Iniciar agora</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Pausar sincronização</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Modo de união</translation>
    </message>
    <message>
        <source>Quillmere is ready.</source>
        <translation>O Quillmere está pronto.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>This version could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>Não foi possível transferir esta versão. Verifique a ligação ao servidor e tente novamente.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>A aplicar as definições...</translation>
    </message>
    <message>
        <source>Files excluded from syncing</source>
        <translation>Ficheiros excluídos da sincronização</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Criado em</translation>
    </message>
    <message>
        <source>The Quillmere service is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>O serviço do Quillmere está desativado no servidor. Peça ao administrador do servidor que o ative.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Choose shared folders to sync</source>
        <translation>Escolha as pastas partilhadas a sincronizar</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]Re&amp;mover</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>A enviar...</translation>
    </message>
    <message>
        <source>To use selective sync, ask the server administrator to upgrade Quillmere on the server.</source>
        <translation>Para utilizar a sincronização seletiva, peça ao administrador do servidor que atualize o Quillmere no servidor.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Nenhuma definição foi alterada.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Ficheiros em utilização</translation>
    </message>
    <message>
        <source>Repairs errors in the installation of [ProductName] by restoring missing or damaged files and shortcuts.</source>
        <translation>Corrige erros na instalação do [ProductName], restaurando ficheiros e atalhos em falta ou danificados.</translation>
    </message>
    <message>
        <source>Excluded file extensions</source>
        <translation>Extensões de ficheiro excluídas</translation>
    </message>
    <message>
        <source>Syncing is paused.</source>
        <translation>A sincronização está em pausa.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome back to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Boas-vindas de novo ao assistente de instalação do [ProductName]</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Palavra-passe</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is not mounted. Mount the drive, then resume syncing. See Sync tasks for the folder.</source>
        <translation>A unidade que contém a pasta de sincronização não está montada. Monte a unidade e retome a sincronização. Veja a pasta em Tarefas de sincronização.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full.</source>
        <translation>A unidade que contém a pasta de sincronização está cheia.</translation>
    </message>
    <message>
        <source>Proxy server address</source>
        <translation>Endereço do servidor proxy</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Tentar novamente</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorar</translation>
    </message>
    <message>
        <source>A folder with this name already exists on this computer. Merge its files with those on the server?</source>
        <translation>Já existe uma pasta com este nome neste computador. Unir os respetivos ficheiros aos do servidor?</translation>
    </message>
    <message>
        <source>Quillmere keeps your files in sync between your computers and your server.</source>
        <translation>O Quillmere mantém os seus ficheiros sincronizados entre os seus computadores e o seu servidor.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Alterar as funcionalidades instaladas</translation>
    </message>
    <message>
        <source>Welcome to Quillmere</source>
        <translation>Boas-vindas ao Quillmere</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>Re&amp;parar</translation>
    </message>
    <message>
        <source>Upgrading Quillmere...</source>
        <translation>A atualizar o Quillmere...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Modo de sincronização</translation>
    </message>
    <message>
        <source>Enter a domain name, an IP address, or a server ID.</source>
        <translation>Introduza um nome de domínio, um endereço IP ou um ID de servidor.</translation>
    </message>
    <message>
        <source>A share link could not be created for this file. Check the connection to the server, then try again.</source>
        <translation>Não foi possível criar uma hiperligação de partilha para este ficheiro. Verifique a ligação ao servidor e tente novamente.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Files being synced: %1</source>
        <translation>Ficheiros em sincronização: %1</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Voltar a ligar</translation>
    </message>
    <message>
        <source>Your files, in sync everywhere</source>
        <translation>Os seus ficheiros, sincronizados em todo o lado</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>The Setup Wizard is making the changes you chose.</source>
        <translation>O assistente de instalação está a efetuar as alterações que escolheu.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predefinição do sistema</translation>
    </message>
    <message>
        <source>The folders and files you deselected will be removed from this computer. They will be kept on the server.</source>
        <translation>As pastas e os ficheiros que desmarcou serão removidos deste computador. Serão mantidos no servidor.</translation>
    </message>
    <message>
        <source>Setup made all the changes you chose. Click Finish to exit the Setup Wizard.</source>
        <translation>O programa de instalação efetuou todas as alterações que escolheu. Clique em Terminar para sair do assistente de instalação.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Clique em Remover para remover o [ProductName] do seu computador. Clique em Recuar para rever as suas opções ou em Cancelar para sair do assistente de instalação.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Sem espaço livre</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>You have used all of your space on the server.</source>
        <translation>Utilizou todo o seu espaço no servidor.</translation>
    </message>
    <message>
        <source>Disconnect from the server?\nYour files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Desligar-se do servidor?\nOs seus ficheiros serão mantidos neste computador e no servidor, mas deixarão de ser sincronizados.</translation>
    </message>
    <message>
        <source>The relay service has a problem. Try again later, or connect to the server by its IP address.</source>
        <translation>Ocorreu um problema no serviço de retransmissão. Tente novamente mais tarde ou ligue-se ao servidor através do respetivo endereço IP.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>ID do servidor</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Nomes de ficheiro excluídos</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Endereço do servidor</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Turned on</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full. Free some space on it to continue syncing.</source>
        <translation>A unidade que contém a pasta de sincronização está cheia. Liberte espaço na unidade para continuar a sincronizar.</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Pastas a sincronizar</translation>
    </message>
    <message>
        <source>Choose sync folder</source>
        <translation>Escolha a pasta de sincronização</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <translation>Definições da ligação</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Sincronização seletiva</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computador</translation>
    </message>
    <message>
        <source>You have used all of your space on the server. Delete files you do not need, or ask the server administrator for more space.</source>
        <translation>Utilizou todo o seu espaço no servidor. Apague ficheiros de que não precisa ou peça mais espaço ao administrador do servidor.</translation>
    </message>
    <message>
        <source>After you start [ProductName], you can find it in the system tray.</source>
        <translation>Depois de iniciar o [ProductName], pode encontrá-lo na área de notificação.</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open and restart the computer later</source>
        <translation>&amp;Deixar as aplicações abertas e reiniciar o computador mais tarde</translation>
    </message>
    <message>
        <source>Use the following proxy server</source>
        <translation>Utilizar o seguinte servidor proxy</translation>
    </message>
    <message>
        <source>This file was changed on this computer and on the server. Both copies are in the same folder under different names. Compare them, then keep the one you need.</source>
        <translation>Este ficheiro foi alterado neste computador e no servidor. As duas cópias estão na mesma pasta com nomes diferentes. Compare-as e mantenha aquela de que precisa.</translation>
    </message>
    <message>
        <source>All your files on every computer, kept on your own server</source>
        <translation>Todos os seus ficheiros em todos os computadores, guardados no seu próprio servidor</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificações no ambiente de trabalho</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Close them, then click Retry. To continue without closing them, click Ignore. To leave setup, click Exit.</source>
        <translation>As seguintes aplicações estão a utilizar ficheiros que o programa de instalação tem de atualizar. Feche-as e clique em Tentar novamente. Para continuar sem as fechar, clique em Ignorar. Para sair do programa de instalação, clique em Sair.</translation>
    </message>
    <message>
        <source>The server cannot be reached. Check the network connection and the server address, then try again.</source>
        <translation>Não é possível aceder ao servidor. Verifique a ligação de rede e o endereço do servidor e tente novamente.</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Pasta de sincronização local</translation>
    </message>
    <message>
        <source>Files that match an entry in this list are not synced.</source>
        <translation>Os ficheiros que correspondam a uma entrada desta lista não são sincronizados.</translation>
    </message>
    <message>
        <source>Edit connection...</source>
        <translation>Editar ligação...</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Choose whether setup should close them. If they stay open, you need to restart the computer to finish setup.</source>
        <translation>As seguintes aplicações estão a utilizar ficheiros que o programa de instalação tem de atualizar. Escolha se este deve fechá-las. Se permanecerem abertas, terá de reiniciar o computador para concluir a instalação.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair.</source>
        <translation>O assistente de instalação está pronto para iniciar a reparação.</translation>
    </message>
    <message>
        <source>Open Quillmere</source>
        <translation>Abrir o Quillmere</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Reinicie o %1 para aplicar as novas definições de idioma.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Mostrar sobreposições de ícones nos ficheiros excluídos</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>A carregar...</translation>
    </message>
    <message>
        <source>The limit of synced shared folders is reached: %1. Stop syncing a shared folder before you add another.</source>
        <translation>O limite de pastas partilhadas sincronizadas foi atingido: %1. Pare a sincronização de uma pasta partilhada antes de adicionar outra.</translation>
    </message>
    <message>
        <source>Remove this sync task?\nIts files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Remover esta tarefa de sincronização?\nOs respetivos ficheiros serão mantidos neste computador e no servidor, mas deixarão de ser sincronizados.</translation>
    </message>
    <message>
        <source>Starting Quillmere...</source>
        <translation>A iniciar o Quillmere...</translation>
    </message>
    <message>
        <source>Quillmere could not be upgraded. Your earlier version was kept. Restart the computer, then try again. Details are in ~/.Quillmere/log.</source>
        <translation>Não foi possível atualizar o Quillmere. A versão anterior foi mantida. Reinicie o computador e tente novamente. Os detalhes estão em ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Excluir nomes começados por um ponto</translation>
    </message>
    <message>
        <source>The server has no free disk space. Ask the server administrator to free some space.</source>
        <translation>O servidor não tem espaço livre no disco. Peça ao administrador do servidor que liberte espaço.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]License agreement</source>
        <translation>[DlgTitleFont]Contrato de licença</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>O ficheiro %1 foi transferido.</translation>
    </message>
    <message>
        <source>The versions of this file could not be listed. Check the connection to the server, then try again.</source>
        <translation>Não foi possível listar as versões deste ficheiro. Verifique a ligação ao servidor e tente novamente.</translation>
    </message>
    <message>
        <source>Connected to the server.</source>
        <translation>Ligado ao servidor.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup is complete</source>
        <translation>{\VerdanaBold13}O programa de instalação do [ProductName] terminou</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Rede local</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Não utilizar um servidor proxy</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Pasta partilhada não encontrada</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Seguinte</translation>
    </message>
    <message>
        <source>Parvenor Quillmere</source>
        <translation>Parvenor Quillmere</translation>
    </message>
    <message>
        <source>%1 could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>Não foi possível transferir o ficheiro %1. Verifique a ligação ao servidor e tente novamente.</translation>
    </message>
    <message>
        <source>Watching for file changes...</source>
        <translation>A monitorizar alterações nos ficheiros...</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Pasta partilhada</translation>
    </message>
    <message>
        <source>Quillmere settings</source>
        <translation>Definições do Quillmere</translation>
    </message>
    <message>
        <source>The share link could not be deleted. Check the connection to the server, then try again.</source>
        <translation>Não foi possível apagar a hiperligação de partilha. Verifique a ligação ao servidor e tente novamente.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified: it may have expired, belong to another server, or come from an unknown issuer. Ask the server administrator to check the certificate.</source>
        <translation>Não foi possível verificar o certificado do servidor: pode ter expirado, pertencer a outro servidor ou provir de um emissor desconhecido. Peça ao administrador do servidor que verifique o certificado.</translation>
    </message>
    <message>
        <source>This is not the server that this computer was connected to. Check the server address, or reconnect.</source>
        <translation>Este não é o servidor ao qual este computador estava ligado. Verifique o endereço do servidor ou volte a ligar-se.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>O [ProductName] não tem funcionalidades que possam ser alteradas separadamente.</translation>
    </message>
    <message>
        <source>The address or port of the proxy server is missing. Enter both, then try again.</source>
        <translation>O endereço ou a porta do servidor proxy está em falta. Introduza ambos e tente novamente.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>The user name is missing. Enter a user name.</source>
        <translation>O nome de utilizador está em falta. Introduza um nome de utilizador.</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Apagar hiperligação</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>A&amp;ceito os termos do contrato de licença</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Atualizado: %1</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Gerir ligações</translation>
    </message>
    <message>
        <source>Connect to another server...</source>
        <translation>Ligar a outro servidor...</translation>
    </message>
    <message>
        <source>Show icon overlays</source>
        <translation>Mostrar sobreposições de ícones</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Making changes to [ProductName]</source>
        <translation>[DlgTitleFont]A efetuar alterações no [ProductName]</translation>
    </message>
    <message>
        <source>Service turned off</source>
        <translation>Serviço desativado</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sincronizar</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder?\nThe files already on this computer will be kept.</source>
        <translation>Parar de sincronizar esta pasta partilhada?\nOs ficheiros que já se encontram neste computador serão mantidos.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalar</translation>
    </message>
    <message>
        <source>Files to exclude</source>
        <translation>Ficheiros a excluir</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Detalhes do estado</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>&amp;Não aceito os termos do contrato de licença</translation>
    </message>
    <message>
        <source>Something went wrong. Try again, and contact the server administrator if the problem continues. Details are in ~/.Quillmere/log.</source>
        <translation>Algo correu mal. Tente novamente e contacte o administrador do servidor se o problema persistir. Os detalhes estão em ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Tray icons</source>
        <translation>Ícones da área de notificação</translation>
    </message>
    <message>
        <source>The folder is read-only. Choose a folder you can write to.</source>
        <translation>A pasta é só de leitura. Escolha uma pasta em que possa escrever.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Seguinte</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Recuar</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Definições de proxy</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so Quillmere might not install completely. Continue?</source>
        <translation>Não iniciou sessão como administrador, pelo que o Quillmere poderá não ficar completamente instalado. Continuar?</translation>
    </message>
    <message>
        <source>Use the tray icon at any time to see the sync status or change the settings.</source>
        <translation>Utilize o ícone da área de notificação em qualquer altura para ver o estado da sincronização ou alterar as definições.</translation>
    </message>
    <message>
        <source>Share link created</source>
        <translation>Hiperligação de partilha criada</translation>
    </message>
    <message>
        <source>The user name or password is not correct. Check both, then try again.</source>
        <translation>Nome de utilizador ou palavra-passe incorretos. Verifique ambos e tente novamente.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Pronto para reparar o [ProductName]</translation>
    </message>
    <message>
        <source>The shared folder %1 is now available. Click here to sync it.</source>
        <translation>A pasta partilhada %1 já está disponível. Clique aqui para a sincronizar.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Informações da ligação</translation>
    </message>
    <message>
        <source>Lets you choose which features are installed.</source>
        <translation>Permite escolher as funcionalidades a instalar.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nome da pasta</translation>
    </message>
    <message>
        <source>Folder is a mount point</source>
        <translation>A pasta é um ponto de montagem</translation>
    </message>
    <message>
        <source>Choose another folder...</source>
        <translation>Escolher outra pasta...</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Apenas transferir do servidor</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Repair</source>
        <translation>[DlgTitleFont]Re&amp;parar</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Re&amp;mover</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Tamanho máximo do ficheiro</translation>
    </message>
    <message>
        <source>Enter the server address and the account you use on the server.</source>
        <translation>Introduza o endereço do servidor e a conta que utiliza no servidor.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Another server was found at the server address.</source>
        <translation>Foi encontrado outro servidor no endereço do servidor.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>A ligar ao servidor...</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Create share link</source>
        <translation>Criar hiperligação de partilha</translation>
    </message>
    <message>
        <source>The user name or password was not accepted by the server. Edit the connection and enter them again.</source>
        <translation>O servidor não aceitou o nome de utilizador ou a palavra-passe. Edite a ligação e introduza-os novamente.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Ficheiros atualizados recentemente</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Utilizar as definições de proxy do sistema</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Alterar pasta...</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Terminar</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Caminho da pasta</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>A transferir...</translation>
    </message>
    <message>
        <source>File locked</source>
        <translation>Ficheiro bloqueado</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>A preparar...</translation>
    </message>
    <message>
        <source>Syncing files...</source>
        <translation>A sincronizar ficheiros...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Pronto para instalar o [ProductName]</translation>
    </message>
    <message>
        <source>Checking the user name and password...</source>
        <translation>A verificar o nome de utilizador e a palavra-passe...</translation>
    </message>
    <message>
        <source>Wait while the Setup Wizard makes the changes to [ProductName]. This can take several minutes.</source>
        <translation>Aguarde enquanto o assistente de instalação efetua as alterações no [ProductName]. Esta operação pode demorar vários minutos.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gerir</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>The server ID is not valid. Check the server ID, then try again.</source>
        <translation>O ID do servidor não é válido. Verifique o ID do servidor e tente novamente.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Abrir pasta de sincronização</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Ao fazer duplo clique no ícone da área de notificação</translation>
    </message>
    <message>
        <source>Syncing could not be turned on for this shared folder. Check your permissions on the server, then try again.</source>
        <translation>Não foi possível ativar a sincronização desta pasta partilhada. Verifique as suas permissões no servidor e tente novamente.</translation>
    </message>
    <message>
        <source>File sharing over the relay is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>A partilha de ficheiros por retransmissão está desativada no servidor. Peça ao administrador do servidor que a ative.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Retomar sincronização</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>The share link was copied to the clipboard.</source>
        <translation>A hiperligação de partilha foi copiada para a área de transferência.</translation>
    </message>
    <message>
        <source>The local sync folder was not found. Restore the folder, or choose another folder. See Sync tasks for its path.</source>
        <translation>A pasta de sincronização local não foi encontrada. Restaure a pasta ou escolha outra pasta. Veja o caminho em Tarefas de sincronização.</translation>
    </message>
    <message>
        <source>Upgrade Quillmere</source>
        <translation>Atualizar o Quillmere</translation>
    </message>
    <message>
        <source>Add sync task...</source>
        <translation>Adicionar tarefa...</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server. Ask the server administrator to mount it. See Shared folders for its name.</source>
        <translation>A pasta partilhada não está montada no servidor. Peça ao administrador do servidor que a monte. Veja o nome da pasta em Pastas partilhadas.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response. Upgrade Quillmere on this computer, and ask the server administrator to upgrade it on the server. Details are in ~/.Quillmere/log.</source>
        <translation>O servidor enviou uma resposta inesperada. Atualize o Quillmere neste computador e peça ao administrador do servidor que o atualize no servidor. Os detalhes estão em ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Visão geral do servidor</translation>
    </message>
    <message>
        <source>Syncing stopped because of a problem. Click here for details.</source>
        <translation>A sincronização parou devido a um problema. Clique aqui para ver os detalhes.</translation>
    </message>
    <message>
        <source>Enter a size of at most %1 MB.</source>
        <translation>Introduza um tamanho de, no máximo, %1&#xa0;MB.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>A verificar ficheiros...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>A tentar sincronizar...</translation>
    </message>
    <message>
        <source>Click Install to begin the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Clique em Instalar para iniciar a instalação do [ProductName]. Clique em Recuar para rever as suas opções ou em Cancelar para sair do assistente de instalação.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup was canceled</source>
        <translation>{\VerdanaBold13}O programa de instalação do [ProductName] foi cancelado</translation>
    </message>
    <message>
        <source>The folder is not empty. Merge its files with those on the server, or choose another folder.</source>
        <translation>A pasta não está vazia. Una os respetivos ficheiros aos do servidor ou escolha outra pasta.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Its files will appear when indexing is complete.</source>
        <translation>Esta pasta está a ser indexada. Os ficheiros serão apresentados quando a indexação terminar.</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nome de utilizador</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Unir</translation>
    </message>
    <message>
        <source>You can open the files in this shared folder, but changes you make are not uploaded.</source>
        <translation>Pode abrir os ficheiros desta pasta partilhada, mas as alterações que fizer não serão enviadas para o servidor.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Definições de rede</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder. Choose another folder.</source>
        <translation>Esta pasta já está sincronizada com outra pasta partilhada. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Retomar</translation>
    </message>
    <message>
        <source>The server has no free disk space.</source>
        <translation>O servidor não tem espaço livre no disco.</translation>
    </message>
    <message>
        <source>Relay by server ID</source>
        <translation>Retransmissão por ID do servidor</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Não</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Escolha o que pretende fazer.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup did not finish</source>
        <translation>{\VerdanaBold13}O programa de instalação do [ProductName] não terminou</translation>
    </message>
    <message>
        <source>Quillmere is already running.</source>
        <translation>O Quillmere já está em execução.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Boas-vindas</translation>
    </message>
    <message>
        <source>Start Quillmere when I sign in to this computer</source>
        <translation>Iniciar o Quillmere ao iniciar sessão neste computador</translation>
    </message>
    <message>
        <source>All files from both folders are kept. If two versions of a file differ, both are kept under different names.</source>
        <translation>São mantidos todos os ficheiros de ambas as pastas. Se duas versões de um ficheiro forem diferentes, ambas são mantidas com nomes diferentes.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Reparar a instalação</translation>
    </message>
    <message>
        <source>Syncing turned on</source>
        <translation>Sincronização ativada</translation>
    </message>
    <message>
        <source>Quillmere could not start. Restart the computer, then start Quillmere again. Details are in ~/.Quillmere/log.</source>
        <translation>Não foi possível iniciar o Quillmere. Reinicie o computador e volte a iniciar o Quillmere. Os detalhes estão em ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Cancel [ProductName] setup?</source>
        <translation>Cancelar o programa de instalação do [ProductName]?</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Continuar mesmo assim</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove [ProductName]</source>
        <translation>[DlgTitleFont]Alterar, reparar ou remover o [ProductName]</translation>
    </message>
    <message>
        <source>Quillmere is set up</source>
        <translation>O Quillmere está configurado</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Definições avançadas</translation>
    </message>
    <message>
        <source>Browse versions...</source>
        <translation>Ver versões...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]A&amp;lterar</translation>
    </message>
    <message>
        <source>This computer is disconnected from the server. Reconnect to continue syncing.</source>
        <translation>Este computador está desligado do servidor. Volte a ligar-se para continuar a sincronizar.</translation>
    </message>
    <message>
        <source>Detecting...</source>
        <translation>A detetar...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Aviso de certificado</translation>
    </message>
    <message>
        <source>The relay service cannot be reached. Check the internet connection, then try again.</source>
        <translation>Não é possível aceder ao serviço de retransmissão. Verifique a ligação à Internet e tente novamente.</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Remove o [ProductName] do seu computador.</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>A transferir %1...</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Terminar</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Pasta só de leitura</translation>
    </message>
    <message>
        <source>[DlgTitleFont]You canceled setup, and your computer was not changed.</source>
        <translation>[DlgTitleFont]Cancelou o programa de instalação, e o computador não foi alterado.</translation>
    </message>
    <message>
        <source>The port number is not valid. Enter a number from 1 to 65535.</source>
        <translation>O número da porta não é válido. Introduza um número de 1 a 65535.</translation>
    </message>
    <message>
        <source>Quillmere cannot watch for changes on a network drive. Choose a folder on a local drive.</source>
        <translation>O Quillmere não consegue monitorizar alterações numa unidade de rede. Escolha uma pasta numa unidade local.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Remover o programa</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Ligação direta</translation>
    </message>
    <message>
        <source>The drive on the server that holds this folder is not mounted. Ask the server administrator to mount it. See Sync tasks for the folder.</source>
        <translation>No servidor, a unidade que contém esta pasta não está montada. Peça ao administrador do servidor que monte a unidade. Veja a pasta em Tarefas de sincronização.</translation>
    </message>
    <message>
        <source>This version of Quillmere is already installed. Install it again?</source>
        <translation>Esta versão do Quillmere já está instalada. Instalá-la novamente?</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server. Upgrade it, then try again.</source>
        <translation>O Quillmere neste computador é demasiado antigo para funcionar com o servidor. Atualize-o e tente novamente.</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer.</source>
        <translation>O Quillmere no servidor é demasiado antigo para funcionar com este computador.</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Desativado</translation>
    </message>
</context>
</TS>
