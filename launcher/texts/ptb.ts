<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Boas-vindas ao Assistente de Instalação do [ProductName]</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>Iniciar o [ProductName] agora</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Pastas compartilhadas</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Todos os arquivos estão atualizados.</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>Processando...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>O Assistente de Instalação está pronto para iniciar a instalação.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome do arquivo</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Modo de conexão</translation>
    </message>
    <message>
        <source>The local database is damaged. Disconnect from the server, then reconnect to rebuild the database. Details are in ~/.Quillmere/log.</source>
        <translation>O banco de dados local está danificado. Desconecte este computador do servidor e reconecte-o para recriar o banco de dados. Os detalhes estão em ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>&amp;Close the applications and restart them after setup</source>
        <translation>&amp;Fechar os aplicativos e reiniciá-los após a instalação</translation>
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
        <translation>O servidor foi substituído. Clique aqui para reconectar este computador.</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Arquivos em sincronização: %1.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change, repair, or remove [ProductName]. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>O Assistente de Instalação permite alterar, reparar ou remover o [ProductName]. Clique em Próximo para continuar ou em Cancelar para sair do Assistente de Instalação.</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Lista de ignorados</translation>
    </message>
    <message>
        <source>Delete this share link?\nPeople who have the link will no longer be able to open the file.</source>
        <translation>Excluir este link de compartilhamento?\nQuem tem o link não poderá mais abrir o arquivo.</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server.</source>
        <translation>O Quillmere neste computador é antigo demais para funcionar com o servidor.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Instalação do [ProductName]</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Falha no login</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testando a conexão...</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: it may have expired, belong to another server, or come from an unknown issuer. Others may be able to read the data you send. Continue?</source>
        <translation>O certificado do servidor não é confiável: ele pode ter expirado, pertencer a outro servidor ou vir de um emissor desconhecido. Outras pessoas talvez possam ler os dados que você envia. Continuar?</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nova pasta compartilhada</translation>
    </message>
    <message>
        <source>About Quillmere</source>
        <translation>Sobre o Quillmere</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done.</source>
        <translation>Confira as configurações abaixo e clique em Concluído.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>I&amp;mprimir</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the removal.</source>
        <translation>O Assistente de Instalação está pronto para iniciar a remoção.</translation>
    </message>
    <message>
        <source>This computer is already connected to this server. Edit the existing connection, or enter another server.</source>
        <translation>Este computador já está conectado a este servidor. Edite a conexão existente ou insira outro servidor.</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Histórico de downloads</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Check the network connection, then try again.</source>
        <translation>A conexão com o servidor foi perdida. Verifique a conexão de rede e tente novamente.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified.</source>
        <translation>Não foi possível verificar o certificado do servidor.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Usar um ícone em preto e branco na bandeja</translation>
    </message>
    <message>
        <source>The files in this folder will be synced with the server.</source>
        <translation>Os arquivos desta pasta serão sincronizados com o servidor.</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>O servidor proxy exige login</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Tarefas de sincronização</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Arquivos ignorados</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Sem permissão</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer. Ask the server administrator to upgrade it.</source>
        <translation>O Quillmere no servidor é antigo demais para funcionar com este computador. Peça ao administrador do servidor que o atualize.</translation>
    </message>
    <message>
        <source>You can run setup again at any time. Click Finish to exit the Setup Wizard.</source>
        <translation>Você pode executar o programa de instalação novamente a qualquer momento. Clique em Concluir para sair do Assistente de Instalação.</translation>
    </message>
    <message>
        <source>The connection to the server is unstable.</source>
        <translation>A conexão com o servidor está instável.</translation>
    </message>
    <message>
        <source>A newer version of Quillmere is already installed. To install this version, remove the newer one first.</source>
        <translation>Uma versão mais recente do Quillmere já está instalada. Para instalar esta versão, remova primeiro a mais recente.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Clique em Reparar para reparar a instalação do [ProductName]. Clique em Voltar para rever suas escolhas ou em Cancelar para sair do Assistente de Instalação.</translation>
    </message>
    <message>
        <source>Some settings have not been saved. Save them?</source>
        <translation>Algumas configurações não foram salvas. Salvá-las?</translation>
    </message>
    <message>
        <source>Icon overlays on files</source>
        <translation>Sobreposições de ícones nos arquivos</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Ação</translation>
    </message>
    <message>
        <source>This folder is already used by another sync program. Choose another folder to avoid conflicts.</source>
        <translation>Esta pasta já é usada por outro programa de sincronização. Escolha outra pasta para evitar conflitos.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
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
        <translation>Insira um nome de arquivo completo, sem o caminho da pasta; por exemplo, thumbs.db.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Setup stopped because of an error. The changes it had made were undone.</source>
        <translation>[DlgTitleFont]O programa de instalação parou por causa de um erro. As alterações que ele havia feito foram desfeitas.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Em espera</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>O Assistente de Instalação instalará o [ProductName] no seu computador. Clique em Próximo para continuar ou em Cancelar para sair do Assistente de Instalação.</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Problema de sincronização</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Leia com atenção o contrato de licença a seguir.</translation>
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
        <translation>Usar uma conexão criptografada (TLS)</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Alguns arquivos que precisam ser atualizados estão em uso.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Somente leitura</translation>
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
        <translation>Uma nova versão do Quillmere está disponível. Clique aqui para atualizar.</translation>
    </message>
    <message>
        <source>The download of %1 was canceled.</source>
        <translation>O download de %1 foi cancelado.</translation>
    </message>
    <message>
        <source>The value you entered is not valid. Check it, then try again.</source>
        <translation>O valor inserido não é válido. Verifique-o e tente novamente.</translation>
    </message>
    <message>
        <source>This file has no earlier versions yet. Change the file and let it sync to create one.</source>
        <translation>Este arquivo ainda não tem versões anteriores. Altere o arquivo e aguarde a sincronização para criar uma.</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Desconectar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Quillmere is initializing...</source>
        <translation>Inicializando o Quillmere...</translation>
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
        <translation>Modo de mesclagem</translation>
    </message>
    <message>
        <source>Quillmere is ready.</source>
        <translation>O Quillmere está pronto.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Horário</translation>
    </message>
    <message>
        <source>This version could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>Não foi possível baixar esta versão. Verifique a conexão com o servidor e tente novamente.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Aplicando as configurações...</translation>
    </message>
    <message>
        <source>Files excluded from syncing</source>
        <translation>Arquivos ignorados na sincronização</translation>
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
        <translation>Escolha as pastas compartilhadas que deseja sincronizar</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]Re&amp;mover</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Enviando...</translation>
    </message>
    <message>
        <source>To use selective sync, ask the server administrator to upgrade Quillmere on the server.</source>
        <translation>Para usar a sincronização seletiva, peça ao administrador do servidor que atualize o Quillmere no servidor.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Nenhuma configuração foi alterada.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Arquivos em uso</translation>
    </message>
    <message>
        <source>Repairs errors in the installation of [ProductName] by restoring missing or damaged files and shortcuts.</source>
        <translation>Corrige erros na instalação do [ProductName] restaurando arquivos e atalhos ausentes ou danificados.</translation>
    </message>
    <message>
        <source>Excluded file extensions</source>
        <translation>Extensões de arquivo ignoradas</translation>
    </message>
    <message>
        <source>Syncing is paused.</source>
        <translation>A sincronização está em pausa.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome back to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Boas-vindas de volta ao Assistente de Instalação do [ProductName]</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
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
        <translation>&amp;Repetir</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorar</translation>
    </message>
    <message>
        <source>A folder with this name already exists on this computer. Merge its files with those on the server?</source>
        <translation>Já existe uma pasta com este nome neste computador. Mesclar os arquivos dela com os do servidor?</translation>
    </message>
    <message>
        <source>Quillmere keeps your files in sync between your computers and your server.</source>
        <translation>O Quillmere mantém seus arquivos sincronizados entre seus computadores e seu servidor.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Alterar os recursos instalados</translation>
    </message>
    <message>
        <source>Welcome to Quillmere</source>
        <translation>Boas-vindas ao Quillmere</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparar</translation>
    </message>
    <message>
        <source>Upgrading Quillmere...</source>
        <translation>Atualizando o Quillmere...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Modo de sincronização</translation>
    </message>
    <message>
        <source>Enter a domain name, an IP address, or a server ID.</source>
        <translation>Insira um nome de domínio, um endereço IP ou um ID de servidor.</translation>
    </message>
    <message>
        <source>A share link could not be created for this file. Check the connection to the server, then try again.</source>
        <translation>Não foi possível criar um link de compartilhamento para este arquivo. Verifique a conexão com o servidor e tente novamente.</translation>
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
        <translation>Arquivos em sincronização: %1</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Reconectar</translation>
    </message>
    <message>
        <source>Your files, in sync everywhere</source>
        <translation>Seus arquivos, sincronizados em qualquer lugar</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>The Setup Wizard is making the changes you chose.</source>
        <translation>O Assistente de Instalação está fazendo as alterações escolhidas.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Padrão do sistema</translation>
    </message>
    <message>
        <source>The folders and files you deselected will be removed from this computer. They will be kept on the server.</source>
        <translation>As pastas e os arquivos que você desmarcou serão removidos deste computador. Eles serão mantidos no servidor.</translation>
    </message>
    <message>
        <source>Setup made all the changes you chose. Click Finish to exit the Setup Wizard.</source>
        <translation>O programa de instalação fez todas as alterações escolhidas. Clique em Concluir para sair do Assistente de Instalação.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Clique em Remover para remover o [ProductName] do seu computador. Clique em Voltar para rever suas escolhas ou em Cancelar para sair do Assistente de Instalação.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Sem espaço livre</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Desconectado</translation>
    </message>
    <message>
        <source>You have used all of your space on the server.</source>
        <translation>Você usou todo o seu espaço no servidor.</translation>
    </message>
    <message>
        <source>Disconnect from the server?\nYour files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Desconectar este computador do servidor?\nSeus arquivos serão mantidos neste computador e no servidor, mas não serão mais sincronizados.</translation>
    </message>
    <message>
        <source>The relay service has a problem. Try again later, or connect to the server by its IP address.</source>
        <translation>Ocorreu um problema no serviço de retransmissão. Tente novamente mais tarde ou conecte-se ao servidor pelo endereço IP dele.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>ID do servidor</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Nomes de arquivo ignorados</translation>
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
        <translation>A unidade que contém a pasta de sincronização está cheia. Libere espaço na unidade para continuar a sincronização.</translation>
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
        <translation>Configurações da conexão</translation>
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
        <translation>Você usou todo o seu espaço no servidor. Exclua arquivos desnecessários ou peça mais espaço ao administrador do servidor.</translation>
    </message>
    <message>
        <source>After you start [ProductName], you can find it in the system tray.</source>
        <translation>Depois de iniciar o [ProductName], você o encontrará na bandeja do sistema.</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open and restart the computer later</source>
        <translation>&amp;Deixar os aplicativos abertos e reiniciar o computador mais tarde</translation>
    </message>
    <message>
        <source>Use the following proxy server</source>
        <translation>Usar o seguinte servidor proxy</translation>
    </message>
    <message>
        <source>This file was changed on this computer and on the server. Both copies are in the same folder under different names. Compare them, then keep the one you need.</source>
        <translation>Este arquivo foi alterado neste computador e no servidor. As duas cópias estão na mesma pasta com nomes diferentes. Compare-as e mantenha aquela de que você precisa.</translation>
    </message>
    <message>
        <source>All your files on every computer, kept on your own server</source>
        <translation>Todos os seus arquivos em todos os computadores, guardados no seu próprio servidor</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificações na área de trabalho</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Close them, then click Retry. To continue without closing them, click Ignore. To leave setup, click Exit.</source>
        <translation>Os aplicativos a seguir usam arquivos que o programa de instalação precisa atualizar. Feche-os e clique em Repetir. Para continuar sem fechá-los, clique em Ignorar. Para sair do programa de instalação, clique em Sair.</translation>
    </message>
    <message>
        <source>The server cannot be reached. Check the network connection and the server address, then try again.</source>
        <translation>Não foi possível acessar o servidor. Verifique a conexão de rede e o endereço do servidor e tente novamente.</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Pasta de sincronização local</translation>
    </message>
    <message>
        <source>Files that match an entry in this list are not synced.</source>
        <translation>Os arquivos que correspondem a um item desta lista não são sincronizados.</translation>
    </message>
    <message>
        <source>Edit connection...</source>
        <translation>Editar conexão...</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Choose whether setup should close them. If they stay open, you need to restart the computer to finish setup.</source>
        <translation>Os aplicativos a seguir usam arquivos que o programa de instalação precisa atualizar. Escolha se ele deve fechá-los. Se eles continuarem abertos, será necessário reiniciar o computador para concluir a instalação.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair.</source>
        <translation>O Assistente de Instalação está pronto para iniciar o reparo.</translation>
    </message>
    <message>
        <source>Open Quillmere</source>
        <translation>Abrir o Quillmere</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Reinicie o %1 para aplicar as novas configurações de idioma.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Mostrar sobreposições de ícones nos arquivos ignorados</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Carregando...</translation>
    </message>
    <message>
        <source>The limit of synced shared folders is reached: %1. Stop syncing a shared folder before you add another.</source>
        <translation>O limite de pastas compartilhadas sincronizadas foi atingido: %1. Pare de sincronizar uma pasta compartilhada antes de adicionar outra.</translation>
    </message>
    <message>
        <source>Remove this sync task?\nIts files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Remover esta tarefa de sincronização?\nOs arquivos dela serão mantidos neste computador e no servidor, mas não serão mais sincronizados.</translation>
    </message>
    <message>
        <source>Starting Quillmere...</source>
        <translation>Iniciando o Quillmere...</translation>
    </message>
    <message>
        <source>Quillmere could not be upgraded. Your earlier version was kept. Restart the computer, then try again. Details are in ~/.Quillmere/log.</source>
        <translation>Não foi possível atualizar o Quillmere. Sua versão anterior foi mantida. Reinicie o computador e tente novamente. Os detalhes estão em ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Ignorar nomes que começam com ponto</translation>
    </message>
    <message>
        <source>The server has no free disk space. Ask the server administrator to free some space.</source>
        <translation>O servidor não tem espaço livre em disco. Peça ao administrador do servidor que libere espaço.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]License agreement</source>
        <translation>[DlgTitleFont]Contrato de licença</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>O arquivo %1 foi baixado.</translation>
    </message>
    <message>
        <source>The versions of this file could not be listed. Check the connection to the server, then try again.</source>
        <translation>Não foi possível listar as versões deste arquivo. Verifique a conexão com o servidor e tente novamente.</translation>
    </message>
    <message>
        <source>Connected to the server.</source>
        <translation>Conectado ao servidor.</translation>
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
        <translation>Não usar um servidor proxy</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Pasta compartilhada não encontrada</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Próximo</translation>
    </message>
    <message>
        <source>Parvenor Quillmere</source>
        <translation>Parvenor Quillmere</translation>
    </message>
    <message>
        <source>%1 could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>Não foi possível baixar o arquivo %1. Verifique a conexão com o servidor e tente novamente.</translation>
    </message>
    <message>
        <source>Watching for file changes...</source>
        <translation>Monitorando alterações nos arquivos...</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Pasta compartilhada</translation>
    </message>
    <message>
        <source>Quillmere settings</source>
        <translation>Configurações do Quillmere</translation>
    </message>
    <message>
        <source>The share link could not be deleted. Check the connection to the server, then try again.</source>
        <translation>Não foi possível excluir o link de compartilhamento. Verifique a conexão com o servidor e tente novamente.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified: it may have expired, belong to another server, or come from an unknown issuer. Ask the server administrator to check the certificate.</source>
        <translation>Não foi possível verificar o certificado do servidor: ele pode ter expirado, pertencer a outro servidor ou vir de um emissor desconhecido. Peça ao administrador do servidor que verifique o certificado.</translation>
    </message>
    <message>
        <source>This is not the server that this computer was connected to. Check the server address, or reconnect.</source>
        <translation>Este não é o servidor ao qual este computador estava conectado. Verifique o endereço do servidor ou reconecte este computador.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>O [ProductName] não tem recursos que possam ser alterados separadamente.</translation>
    </message>
    <message>
        <source>The address or port of the proxy server is missing. Enter both, then try again.</source>
        <translation>Falta o endereço ou a porta do servidor proxy. Insira ambos e tente novamente.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>The user name is missing. Enter a user name.</source>
        <translation>Falta o nome de usuário. Insira um nome de usuário.</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Excluir link</translation>
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
        <translation>Gerenciar conexões</translation>
    </message>
    <message>
        <source>Connect to another server...</source>
        <translation>Conectar a outro servidor...</translation>
    </message>
    <message>
        <source>Show icon overlays</source>
        <translation>Mostrar sobreposições de ícones</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Making changes to [ProductName]</source>
        <translation>[DlgTitleFont]Fazendo alterações no [ProductName]</translation>
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
        <translation>Parar de sincronizar esta pasta compartilhada?\nOs arquivos que já estão neste computador serão mantidos.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalar</translation>
    </message>
    <message>
        <source>Files to exclude</source>
        <translation>Arquivos a ignorar</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Detalhes do status</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>&amp;Não aceito os termos do contrato de licença</translation>
    </message>
    <message>
        <source>Something went wrong. Try again, and contact the server administrator if the problem continues. Details are in ~/.Quillmere/log.</source>
        <translation>Algo deu errado. Tente novamente e, se o problema persistir, entre em contato com o administrador do servidor. Os detalhes estão em ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Tray icons</source>
        <translation>Ícones da bandeja</translation>
    </message>
    <message>
        <source>The folder is read-only. Choose a folder you can write to.</source>
        <translation>A pasta é somente leitura. Escolha uma pasta na qual você possa gravar.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Próximo</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Voltar</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Configurações de proxy</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so Quillmere might not install completely. Continue?</source>
        <translation>Você não fez login como administrador; por isso, talvez o Quillmere não seja instalado por completo. Continuar?</translation>
    </message>
    <message>
        <source>Use the tray icon at any time to see the sync status or change the settings.</source>
        <translation>Use o ícone da bandeja a qualquer momento para ver o status da sincronização ou alterar as configurações.</translation>
    </message>
    <message>
        <source>Share link created</source>
        <translation>Link de compartilhamento criado</translation>
    </message>
    <message>
        <source>The user name or password is not correct. Check both, then try again.</source>
        <translation>Nome de usuário ou senha incorretos. Verifique ambos e tente novamente.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Pronto para reparar o [ProductName]</translation>
    </message>
    <message>
        <source>The shared folder %1 is now available. Click here to sync it.</source>
        <translation>A pasta compartilhada %1 agora está disponível. Clique aqui para sincronizá-la.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Informações da conexão</translation>
    </message>
    <message>
        <source>Lets you choose which features are installed.</source>
        <translation>Permite escolher quais recursos são instalados.</translation>
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
        <translation>Somente download</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Repair</source>
        <translation>[DlgTitleFont]&amp;Reparar</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Re&amp;mover</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Tamanho máximo de arquivo</translation>
    </message>
    <message>
        <source>Enter the server address and the account you use on the server.</source>
        <translation>Insira o endereço do servidor e a conta que você usa no servidor.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Another server was found at the server address.</source>
        <translation>Outro servidor foi encontrado no endereço do servidor.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Conectando ao servidor...</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Create share link</source>
        <translation>Criar link de compartilhamento</translation>
    </message>
    <message>
        <source>The user name or password was not accepted by the server. Edit the connection and enter them again.</source>
        <translation>O servidor não aceitou o nome de usuário ou a senha. Edite a conexão e insira-os novamente.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Arquivos atualizados recentemente</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Usar as configurações de proxy do sistema</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Alterar pasta...</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Concluir</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Caminho da pasta</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Baixando...</translation>
    </message>
    <message>
        <source>File locked</source>
        <translation>Arquivo bloqueado</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparando...</translation>
    </message>
    <message>
        <source>Syncing files...</source>
        <translation>Sincronizando arquivos...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Pronto para instalar o [ProductName]</translation>
    </message>
    <message>
        <source>Checking the user name and password...</source>
        <translation>Verificando o nome de usuário e a senha...</translation>
    </message>
    <message>
        <source>Wait while the Setup Wizard makes the changes to [ProductName]. This can take several minutes.</source>
        <translation>Aguarde enquanto o Assistente de Instalação faz as alterações no [ProductName]. Isso pode levar vários minutos.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gerenciar</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
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
        <translation>Ao clicar duas vezes no ícone da bandeja</translation>
    </message>
    <message>
        <source>Syncing could not be turned on for this shared folder. Check your permissions on the server, then try again.</source>
        <translation>Não foi possível ativar a sincronização desta pasta compartilhada. Verifique suas permissões no servidor e tente novamente.</translation>
    </message>
    <message>
        <source>File sharing over the relay is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>O compartilhamento de arquivos por retransmissão está desativado no servidor. Peça ao administrador do servidor que o ative.</translation>
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
        <translation>O link de compartilhamento foi copiado para a área de transferência.</translation>
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
        <translation>A pasta compartilhada não está montada no servidor. Peça ao administrador do servidor que a monte. Veja o nome da pasta em Pastas compartilhadas.</translation>
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
        <translation>A sincronização foi interrompida por causa de um problema. Clique aqui para ver os detalhes.</translation>
    </message>
    <message>
        <source>Enter a size of at most %1 MB.</source>
        <translation>Insira um tamanho de no máximo %1&#xa0;MB.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Verificando arquivos...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Tentando sincronizar...</translation>
    </message>
    <message>
        <source>Click Install to begin the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Clique em Instalar para iniciar a instalação do [ProductName]. Clique em Voltar para rever suas escolhas ou em Cancelar para sair do Assistente de Instalação.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup was canceled</source>
        <translation>{\VerdanaBold13}O programa de instalação do [ProductName] foi cancelado</translation>
    </message>
    <message>
        <source>The folder is not empty. Merge its files with those on the server, or choose another folder.</source>
        <translation>A pasta não está vazia. Mescle os arquivos dela com os do servidor ou escolha outra pasta.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Its files will appear when indexing is complete.</source>
        <translation>Esta pasta está sendo indexada. Os arquivos aparecerão quando a indexação for concluída.</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nome de usuário</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Mesclar</translation>
    </message>
    <message>
        <source>You can open the files in this shared folder, but changes you make are not uploaded.</source>
        <translation>Você pode abrir os arquivos desta pasta compartilhada, mas as alterações que fizer não serão enviadas ao servidor.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Configurações de rede</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder. Choose another folder.</source>
        <translation>Esta pasta já está sincronizada com outra pasta compartilhada. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Retomar</translation>
    </message>
    <message>
        <source>The server has no free disk space.</source>
        <translation>O servidor não tem espaço livre em disco.</translation>
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
        <translation>Escolha o que você deseja fazer.</translation>
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
        <translation>Iniciar o Quillmere quando eu fizer login neste computador</translation>
    </message>
    <message>
        <source>All files from both folders are kept. If two versions of a file differ, both are kept under different names.</source>
        <translation>Todos os arquivos de ambas as pastas são mantidos. Se duas versões de um arquivo forem diferentes, ambas serão mantidas com nomes diferentes.</translation>
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
        <translation>Não foi possível iniciar o Quillmere. Reinicie o computador e inicie o Quillmere novamente. Os detalhes estão em ~/.Quillmere/log.</translation>
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
        <translation>Configurações avançadas</translation>
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
        <translation>Este computador está desconectado do servidor. Reconecte-o para continuar a sincronização.</translation>
    </message>
    <message>
        <source>Detecting...</source>
        <translation>Detectando...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Aviso de certificado</translation>
    </message>
    <message>
        <source>The relay service cannot be reached. Check the internet connection, then try again.</source>
        <translation>Não foi possível acessar o serviço de retransmissão. Verifique a conexão com a internet e tente novamente.</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Remove o [ProductName] do seu computador.</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Baixando %1...</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Concluir</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Pasta somente leitura</translation>
    </message>
    <message>
        <source>[DlgTitleFont]You canceled setup, and your computer was not changed.</source>
        <translation>[DlgTitleFont]Você cancelou o programa de instalação, e seu computador não foi alterado.</translation>
    </message>
    <message>
        <source>The port number is not valid. Enter a number from 1 to 65535.</source>
        <translation>O número da porta não é válido. Insira um número de 1 a 65535.</translation>
    </message>
    <message>
        <source>Quillmere cannot watch for changes on a network drive. Choose a folder on a local drive.</source>
        <translation>O Quillmere não consegue monitorar alterações em uma unidade de rede. Escolha uma pasta em uma unidade local.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Remover o programa</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Conexão direta</translation>
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
        <translation>O Quillmere neste computador é antigo demais para funcionar com o servidor. Atualize-o e tente novamente.</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer.</source>
        <translation>O Quillmere no servidor é antigo demais para funcionar com este computador.</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Desativado</translation>
    </message>
</context>
</TS>
