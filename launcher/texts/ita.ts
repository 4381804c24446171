<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Ti diamo il benvenuto nella procedura guidata di installazione di [ProductName]</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>Avvia [ProductName] ora</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Cartelle condivise</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Tutti i file sono aggiornati.</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>Elaborazione in corso...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>La procedura guidata è pronta per iniziare l&apos;installazione.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome file</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Modalità di connessione</translation>
    </message>
    <message>
        <source>The local database is damaged. Disconnect from the server, then reconnect to rebuild the database. Details are in ~/.Quillmere/log.</source>
        <translation>Il database locale è danneggiato. Disconnettere il computer dal server, quindi riconnetterlo per ricostruire il database. I dettagli sono in «~/.Quillmere/log».</translation>
    </message>
    <message>
        <source>&amp;Close the applications and restart them after setup</source>
        <translation>&amp;Chiudi le applicazioni e riavviale al termine dell&apos;installazione</translation>
    </message>
    <message>
        <source>The folder is a mount point. Choose a folder that is not a mount point.</source>
        <translation>La cartella è un punto di montaggio. Scegliere una cartella che non sia un punto di montaggio.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Pronto per la disinstallazione di [ProductName]</translation>
    </message>
    <message>
        <source>The server has been replaced. Click here to reconnect.</source>
        <translation>Il server è stato sostituito. Fare clic qui per riconnettere il computer.</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Sincronizzazione di %1 file in corso.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change, repair, or remove [ProductName]. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>La procedura guidata consente di modificare, riparare o disinstallare [ProductName]. Fare clic su «Successivo» per continuare o su «Annulla» per uscire dalla procedura guidata.</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Elenco esclusioni</translation>
    </message>
    <message>
        <source>Delete this share link?\nPeople who have the link will no longer be able to open the file.</source>
        <translation>Eliminare questo link di condivisione?\nChi dispone del link non potrà più aprire il file.</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server.</source>
        <translation>Quillmere su questo computer è troppo vecchio per funzionare con il server.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installazione di [ProductName]</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Autenticazione non riuscita</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Verifica della connessione...</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: it may have expired, belong to another server, or come from an unknown issuer. Others may be able to read the data you send. Continue?</source>
        <translation>Il certificato del server non è attendibile: potrebbe essere scaduto, appartenere a un altro server o provenire da un emittente sconosciuto. Altre persone potrebbero leggere i dati inviati. Continuare?</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nuova cartella condivisa</translation>
    </message>
    <message>
        <source>About Quillmere</source>
        <translation>Informazioni su Quillmere</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done.</source>
        <translation>Controllare le impostazioni seguenti, quindi fare clic su «Fatto».</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Stam&amp;pa</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the removal.</source>
        <translation>La procedura guidata è pronta per iniziare la disinstallazione.</translation>
    </message>
    <message>
        <source>This computer is already connected to this server. Edit the existing connection, or enter another server.</source>
        <translation>Questo computer è già connesso a questo server. Modificare la connessione esistente o inserire un altro server.</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Cronologia download</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Check the network connection, then try again.</source>
        <translation>La connessione al server è stata interrotta. Controllare la connessione di rete, quindi riprovare.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified.</source>
        <translation>Non è stato possibile verificare il certificato del server.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Usa un&apos;icona in bianco e nero nell&apos;area di notifica</translation>
    </message>
    <message>
        <source>The files in this folder will be synced with the server.</source>
        <translation>I file in questa cartella verranno sincronizzati con il server.</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>Il server proxy richiede l&apos;autenticazione</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Attività di sincronizzazione</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>File esclusi</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Permessi insufficienti</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer. Ask the server administrator to upgrade it.</source>
        <translation>Quillmere sul server è troppo vecchio per funzionare con questo computer. Chiedere all&apos;amministratore del server di aggiornarlo.</translation>
    </message>
    <message>
        <source>You can run setup again at any time. Click Finish to exit the Setup Wizard.</source>
        <translation>È possibile eseguire di nuovo il programma di installazione in qualsiasi momento. Fare clic su «Fine» per uscire dalla procedura guidata.</translation>
    </message>
    <message>
        <source>The connection to the server is unstable.</source>
        <translation>La connessione al server è instabile.</translation>
    </message>
    <message>
        <source>A newer version of Quillmere is already installed. To install this version, remove the newer one first.</source>
        <translation>È già installata una versione più recente di Quillmere. Per installare questa versione, disinstallare prima quella più recente.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Fare clic su «Ripara» per riparare l&apos;installazione di [ProductName]. Fare clic su «Indietro» per rivedere le scelte o su «Annulla» per uscire dalla procedura guidata.</translation>
    </message>
    <message>
        <source>Some settings have not been saved. Save them?</source>
        <translation>Alcune impostazioni non sono state salvate. Salvarle?</translation>
    </message>
    <message>
        <source>Icon overlays on files</source>
        <translation>Icone sovrapposte ai file</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Azione</translation>
    </message>
    <message>
        <source>This folder is already used by another sync program. Choose another folder to avoid conflicts.</source>
        <translation>Questa cartella è già usata da un altro programma di sincronizzazione. Scegliere un&apos;altra cartella per evitare conflitti.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Versione incompatibile</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Cambia cartella di sincronizzazione</translation>
    </message>
    <message>
        <source>Enter a complete file name without a folder path, for example thumbs.db.</source>
        <translation>Inserire un nome di file completo, senza percorso della cartella, ad esempio «thumbs.db».</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Setup stopped because of an error. The changes it had made were undone.</source>
        <translation>[DlgTitleFont]Il programma di installazione si è interrotto a causa di un errore. Le modifiche apportate sono state annullate.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>La procedura guidata installerà [ProductName] sul computer. Fare clic su «Successivo» per continuare o su «Annulla» per uscire dalla procedura guidata.</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Problema di sincronizzazione</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Leggere attentamente il seguente contratto di licenza.</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Cartella non vuota</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Use an encrypted connection (TLS)</source>
        <translation>Usa una connessione cifrata (TLS)</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Alcuni file da aggiornare sono in uso.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Sola lettura</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sì</translation>
    </message>
    <message>
        <source>A new version of Quillmere is available. Click here to upgrade.</source>
        <translation>È disponibile una nuova versione di Quillmere. Fare clic qui per aggiornare.</translation>
    </message>
    <message>
        <source>The download of %1 was canceled.</source>
        <translation>Il download di «%1» è stato annullato.</translation>
    </message>
    <message>
        <source>The value you entered is not valid. Check it, then try again.</source>
        <translation>Il valore inserito non è valido. Controllarlo, quindi riprovare.</translation>
    </message>
    <message>
        <source>This file has no earlier versions yet. Change the file and let it sync to create one.</source>
        <translation>Questo file non ha ancora versioni precedenti. Modificarlo e attendere la sincronizzazione per crearne una.</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Disconnetti</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Quillmere is initializing...</source>
        <translation>Inizializzazione di Quillmere...</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Avvia ora</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Sospendi sincronizzazione</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Modalità di unione</translation>
    </message>
    <message>
        <source>Quillmere is ready.</source>
        <translation>Quillmere è pronto.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>This version could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>Non è stato possibile scaricare questa versione. Controllare la connessione al server, quindi riprovare.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Applicazione delle impostazioni...</translation>
    </message>
    <message>
        <source>Files excluded from syncing</source>
        <translation>File esclusi dalla sincronizzazione</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Data di creazione</translation>
    </message>
    <message>
        <source>The Quillmere service is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>Il servizio Quillmere è disattivato sul server. Chiedere all&apos;amministratore del server di attivarlo.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Choose shared folders to sync</source>
        <translation>Scegliere le cartelle condivise da sincronizzare</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]&amp;Disinstalla</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Invio in corso...</translation>
    </message>
    <message>
        <source>To use selective sync, ask the server administrator to upgrade Quillmere on the server.</source>
        <translation>Per usare la sincronizzazione selettiva, chiedere all&apos;amministratore del server di aggiornare Quillmere sul server.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Nessuna impostazione è stata modificata.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]File in uso</translation>
    </message>
    <message>
        <source>Repairs errors in the installation of [ProductName] by restoring missing or damaged files and shortcuts.</source>
        <translation>Corregge gli errori dell&apos;installazione di [ProductName] ripristinando i file e i collegamenti mancanti o danneggiati.</translation>
    </message>
    <message>
        <source>Excluded file extensions</source>
        <translation>Estensioni di file escluse</translation>
    </message>
    <message>
        <source>Syncing is paused.</source>
        <translation>La sincronizzazione è sospesa.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome back to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Ti diamo di nuovo il benvenuto nella procedura guidata di installazione di [ProductName]</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is not mounted. Mount the drive, then resume syncing. See Sync tasks for the folder.</source>
        <translation>L&apos;unità che contiene la cartella di sincronizzazione non è montata. Montare l&apos;unità, quindi riprendere la sincronizzazione. La cartella è indicata in «Attività di sincronizzazione».</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full.</source>
        <translation>L&apos;unità che contiene la cartella di sincronizzazione è piena.</translation>
    </message>
    <message>
        <source>Proxy server address</source>
        <translation>Indirizzo del server proxy</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Riprova</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignora</translation>
    </message>
    <message>
        <source>A folder with this name already exists on this computer. Merge its files with those on the server?</source>
        <translation>Su questo computer esiste già una cartella con questo nome. Unire i file che contiene a quelli sul server?</translation>
    </message>
    <message>
        <source>Quillmere keeps your files in sync between your computers and your server.</source>
        <translation>Quillmere mantiene sincronizzati i file tra i computer e il server.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Modifica le funzionalità installate</translation>
    </message>
    <message>
        <source>Welcome to Quillmere</source>
        <translation>Ti diamo il benvenuto in Quillmere</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Ripara</translation>
    </message>
    <message>
        <source>Upgrading Quillmere...</source>
        <translation>Aggiornamento di Quillmere...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Modalità di sincronizzazione</translation>
    </message>
    <message>
        <source>Enter a domain name, an IP address, or a server ID.</source>
        <translation>Inserire un nome di dominio, un indirizzo IP o un ID server.</translation>
    </message>
    <message>
        <source>A share link could not be created for this file. Check the connection to the server, then try again.</source>
        <translation>Non è stato possibile creare un link di condivisione per questo file. Controllare la connessione al server, quindi riprovare.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fatto</translation>
    </message>
    <message>
        <source>Files being synced: %1</source>
        <translation>File in corso di sincronizzazione: %1</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Riconnetti</translation>
    </message>
    <message>
        <source>Your files, in sync everywhere</source>
        <translation>File sincronizzati, ovunque</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destinazione</translation>
    </message>
    <message>
        <source>The Setup Wizard is making the changes you chose.</source>
        <translation>La procedura guidata sta apportando le modifiche scelte.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predefinita del sistema</translation>
    </message>
    <message>
        <source>The folders and files you deselected will be removed from this computer. They will be kept on the server.</source>
        <translation>Le cartelle e i file deselezionati verranno rimossi da questo computer. Verranno mantenuti sul server.</translation>
    </message>
    <message>
        <source>Setup made all the changes you chose. Click Finish to exit the Setup Wizard.</source>
        <translation>Il programma di installazione ha apportato tutte le modifiche scelte. Fare clic su «Fine» per uscire dalla procedura guidata.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Fare clic su «Disinstalla» per disinstallare [ProductName] dal computer. Fare clic su «Indietro» per rivedere le scelte o su «Annulla» per uscire dalla procedura guidata.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Spazio esaurito</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Disconnesso</translation>
    </message>
    <message>
        <source>You have used all of your space on the server.</source>
        <translation>Lo spazio assegnato sul server è esaurito.</translation>
    </message>
    <message>
        <source>Disconnect from the server?\nYour files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Disconnettere il computer dal server?\nI file verranno mantenuti su questo computer e sul server, ma non verranno più sincronizzati.</translation>
    </message>
    <message>
        <source>The relay service has a problem. Try again later, or connect to the server by its IP address.</source>
        <translation>Il servizio di relay ha riscontrato un problema. Riprovare più tardi o connettersi al server tramite il suo indirizzo IP.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>ID server</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Nomi di file esclusi</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Indirizzo del server</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Turned on</source>
        <translation>Attivato</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full. Free some space on it to continue syncing.</source>
        <translation>L&apos;unità che contiene la cartella di sincronizzazione è piena. Liberare spazio sull&apos;unità per continuare la sincronizzazione.</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Cartelle da sincronizzare</translation>
    </message>
    <message>
        <source>Choose sync folder</source>
        <translation>Scegliere la cartella di sincronizzazione</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <translation>Impostazioni di connessione</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Sincronizzazione selettiva</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>You have used all of your space on the server. Delete files you do not need, or ask the server administrator for more space.</source>
        <translation>Lo spazio assegnato sul server è esaurito. Eliminare i file non necessari o chiedere più spazio all&apos;amministratore del server.</translation>
    </message>
    <message>
        <source>After you start [ProductName], you can find it in the system tray.</source>
        <translation>Dopo l&apos;avvio, [ProductName] è disponibile nell&apos;area di notifica.</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open and restart the computer later</source>
        <translation>&amp;Lascia aperte le applicazioni e riavvia il computer in seguito</translation>
    </message>
    <message>
        <source>Use the following proxy server</source>
        <translation>Usa il seguente server proxy</translation>
    </message>
    <message>
        <source>This file was changed on this computer and on the server. Both copies are in the same folder under different names. Compare them, then keep the one you need.</source>
        <translation>Questo file è stato modificato su questo computer e sul server. Le due copie si trovano nella stessa cartella con nomi diversi. Confrontarle, quindi conservare quella necessaria.</translation>
    </message>
    <message>
        <source>All your files on every computer, kept on your own server</source>
        <translation>Tutti i file su ogni computer, conservati su un server personale</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostra notifiche sul desktop</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Close them, then click Retry. To continue without closing them, click Ignore. To leave setup, click Exit.</source>
        <translation>Le seguenti applicazioni usano file che il programma di installazione deve aggiornare. Chiuderle, quindi fare clic su «Riprova». Per continuare senza chiuderle, fare clic su «Ignora». Per uscire dal programma di installazione, fare clic su «Esci».</translation>
    </message>
    <message>
        <source>The server cannot be reached. Check the network connection and the server address, then try again.</source>
        <translation>Impossibile raggiungere il server. Controllare la connessione di rete e l&apos;indirizzo del server, quindi riprovare.</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Cartella di sincronizzazione locale</translation>
    </message>
    <message>
        <source>Files that match an entry in this list are not synced.</source>
        <translation>I file che corrispondono a una voce di questo elenco non vengono sincronizzati.</translation>
    </message>
    <message>
        <source>Edit connection...</source>
        <translation>Modifica connessione...</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Choose whether setup should close them. If they stay open, you need to restart the computer to finish setup.</source>
        <translation>Le seguenti applicazioni usano file che il programma di installazione deve aggiornare. Scegliere se chiuderle automaticamente. Se restano aperte, sarà necessario riavviare il computer per completare l&apos;installazione.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair.</source>
        <translation>La procedura guidata è pronta per iniziare la riparazione.</translation>
    </message>
    <message>
        <source>Open Quillmere</source>
        <translation>Apri Quillmere</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Riavviare %1 per applicare le nuove impostazioni della lingua.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sospendi</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Mostra icone sovrapposte ai file esclusi</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Caricamento...</translation>
    </message>
    <message>
        <source>The limit of synced shared folders is reached: %1. Stop syncing a shared folder before you add another.</source>
        <translation>È stato raggiunto il limite di cartelle condivise sincronizzate: %1. Interrompere la sincronizzazione di una cartella condivisa prima di aggiungerne un&apos;altra.</translation>
    </message>
    <message>
        <source>Remove this sync task?\nIts files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Rimuovere questa attività di sincronizzazione?\nI relativi file verranno mantenuti su questo computer e sul server, ma non verranno più sincronizzati.</translation>
    </message>
    <message>
        <source>Starting Quillmere...</source>
        <translation>Avvio di Quillmere...</translation>
    </message>
    <message>
        <source>Quillmere could not be upgraded. Your earlier version was kept. Restart the computer, then try again. Details are in ~/.Quillmere/log.</source>
        <translation>Non è stato possibile aggiornare Quillmere. La versione precedente è stata mantenuta. Riavviare il computer, quindi riprovare. I dettagli sono in «~/.Quillmere/log».</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Escludi i nomi che iniziano con un punto</translation>
    </message>
    <message>
        <source>The server has no free disk space. Ask the server administrator to free some space.</source>
        <translation>Lo spazio su disco del server è esaurito. Chiedere all&apos;amministratore del server di liberare spazio.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]License agreement</source>
        <translation>[DlgTitleFont]Contratto di licenza</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>Il file «%1» è stato scaricato.</translation>
    </message>
    <message>
        <source>The versions of this file could not be listed. Check the connection to the server, then try again.</source>
        <translation>Non è stato possibile elencare le versioni di questo file. Controllare la connessione al server, quindi riprovare.</translation>
    </message>
    <message>
        <source>Connected to the server.</source>
        <translation>Connessione al server stabilita.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup is complete</source>
        <translation>{\VerdanaBold13}Il programma di installazione di [ProductName] ha completato l&apos;operazione</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Rete locale</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Non usare un server proxy</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Cartella condivisa non trovata</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Successivo</translation>
    </message>
    <message>
        <source>Parvenor Quillmere</source>
        <translation>Parvenor Quillmere</translation>
    </message>
    <message>
        <source>%1 could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>Non è stato possibile scaricare il file «%1». Controllare la connessione al server, quindi riprovare.</translation>
    </message>
    <message>
        <source>Watching for file changes...</source>
        <translation>Monitoraggio delle modifiche ai file...</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Cartella condivisa</translation>
    </message>
    <message>
        <source>Quillmere settings</source>
        <translation>Impostazioni di Quillmere</translation>
    </message>
    <message>
        <source>The share link could not be deleted. Check the connection to the server, then try again.</source>
        <translation>Non è stato possibile eliminare il link di condivisione. Controllare la connessione al server, quindi riprovare.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified: it may have expired, belong to another server, or come from an unknown issuer. Ask the server administrator to check the certificate.</source>
        <translation>Non è stato possibile verificare il certificato del server: potrebbe essere scaduto, appartenere a un altro server o provenire da un emittente sconosciuto. Chiedere all&apos;amministratore del server di controllare il certificato.</translation>
    </message>
    <message>
        <source>This is not the server that this computer was connected to. Check the server address, or reconnect.</source>
        <translation>Questo non è il server a cui era connesso il computer. Controllare l&apos;indirizzo del server o riconnettere il computer.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] non ha funzionalità modificabili separatamente.</translation>
    </message>
    <message>
        <source>The address or port of the proxy server is missing. Enter both, then try again.</source>
        <translation>Manca l&apos;indirizzo o la porta del server proxy. Inserirli entrambi, quindi riprovare.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>The user name is missing. Enter a user name.</source>
        <translation>Manca il nome utente. Inserire un nome utente.</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Elimina link</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>A&amp;ccetto i termini del contratto di licenza</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Aggiornato: %1</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Gestisci connessioni</translation>
    </message>
    <message>
        <source>Connect to another server...</source>
        <translation>Connetti a un altro server...</translation>
    </message>
    <message>
        <source>Show icon overlays</source>
        <translation>Mostra icone sovrapposte</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Making changes to [ProductName]</source>
        <translation>[DlgTitleFont]Modifiche a [ProductName] in corso</translation>
    </message>
    <message>
        <source>Service turned off</source>
        <translation>Servizio disattivato</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sincronizza</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder?\nThe files already on this computer will be kept.</source>
        <translation>Interrompere la sincronizzazione di questa cartella condivisa?\nI file già presenti su questo computer verranno mantenuti.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>Ins&amp;talla</translation>
    </message>
    <message>
        <source>Files to exclude</source>
        <translation>File da escludere</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Dettagli dello stato</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>&amp;Non accetto i termini del contratto di licenza</translation>
    </message>
    <message>
        <source>Something went wrong. Try again, and contact the server administrator if the problem continues. Details are in ~/.Quillmere/log.</source>
        <translation>Si è verificato un problema. Riprovare e, se il problema persiste, contattare l&apos;amministratore del server. I dettagli sono in «~/.Quillmere/log».</translation>
    </message>
    <message>
        <source>Tray icons</source>
        <translation>Icone nell&apos;area di notifica</translation>
    </message>
    <message>
        <source>The folder is read-only. Choose a folder you can write to.</source>
        <translation>La cartella è in sola lettura. Scegliere una cartella in cui sia possibile scrivere.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Successivo</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Indietro</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Impostazioni del proxy</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so Quillmere might not install completely. Continue?</source>
        <translation>L&apos;accesso non è stato eseguito come amministratore, quindi Quillmere potrebbe non venire installato completamente. Continuare?</translation>
    </message>
    <message>
        <source>Use the tray icon at any time to see the sync status or change the settings.</source>
        <translation>Usare l&apos;icona nell&apos;area di notifica in qualsiasi momento per visualizzare lo stato della sincronizzazione o modificare le impostazioni.</translation>
    </message>
    <message>
        <source>Share link created</source>
        <translation>Link di condivisione creato</translation>
    </message>
    <message>
        <source>The user name or password is not correct. Check both, then try again.</source>
        <translation>Nome utente o password non corretti. Controllarli entrambi, quindi riprovare.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Pronto per la riparazione di [ProductName]</translation>
    </message>
    <message>
        <source>The shared folder %1 is now available. Click here to sync it.</source>
        <translation>La cartella condivisa «%1» è ora disponibile. Fare clic qui per sincronizzarla.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stato:</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Informazioni sulla connessione</translation>
    </message>
    <message>
        <source>Lets you choose which features are installed.</source>
        <translation>Consente di scegliere le funzionalità da installare.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nome cartella</translation>
    </message>
    <message>
        <source>Folder is a mount point</source>
        <translation>La cartella è un punto di montaggio</translation>
    </message>
    <message>
        <source>Choose another folder...</source>
        <translation>Scegli un&apos;altra cartella...</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Solo download</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Repair</source>
        <translation>[DlgTitleFont]&amp;Ripara</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Disinstalla</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Dimensione massima dei file</translation>
    </message>
    <message>
        <source>Enter the server address and the account you use on the server.</source>
        <translation>Inserire l&apos;indirizzo del server e l&apos;account usato sul server.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Another server was found at the server address.</source>
        <translation>All&apos;indirizzo del server è stato trovato un altro server.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Connessione al server...</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Create share link</source>
        <translation>Crea link di condivisione</translation>
    </message>
    <message>
        <source>The user name or password was not accepted by the server. Edit the connection and enter them again.</source>
        <translation>Il server non ha accettato il nome utente o la password. Modificare la connessione e inserirli di nuovo.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>File aggiornati di recente</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Usa le impostazioni proxy del sistema</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Cambia cartella...</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Percorso della cartella</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Download in corso...</translation>
    </message>
    <message>
        <source>File locked</source>
        <translation>File bloccato</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparazione...</translation>
    </message>
    <message>
        <source>Syncing files...</source>
        <translation>Sincronizzazione dei file...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Pronto per l&apos;installazione di [ProductName]</translation>
    </message>
    <message>
        <source>Checking the user name and password...</source>
        <translation>Verifica del nome utente e della password...</translation>
    </message>
    <message>
        <source>Wait while the Setup Wizard makes the changes to [ProductName]. This can take several minutes.</source>
        <translation>Attendere che la procedura guidata apporti le modifiche a [ProductName]. L&apos;operazione può richiedere diversi minuti.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gestisci</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>The server ID is not valid. Check the server ID, then try again.</source>
        <translation>L&apos;ID server non è valido. Controllarlo, quindi riprovare.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Apri cartella di sincronizzazione</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Al doppio clic sull&apos;icona nell&apos;area di notifica</translation>
    </message>
    <message>
        <source>Syncing could not be turned on for this shared folder. Check your permissions on the server, then try again.</source>
        <translation>Non è stato possibile attivare la sincronizzazione per questa cartella condivisa. Controllare i propri permessi sul server, quindi riprovare.</translation>
    </message>
    <message>
        <source>File sharing over the relay is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>La condivisione di file tramite relay è disattivata sul server. Chiedere all&apos;amministratore del server di attivarla.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Riprendi sincronizzazione</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>The share link was copied to the clipboard.</source>
        <translation>Il link di condivisione è stato copiato negli appunti.</translation>
    </message>
    <message>
        <source>The local sync folder was not found. Restore the folder, or choose another folder. See Sync tasks for its path.</source>
        <translation>La cartella di sincronizzazione locale non è stata trovata. Ripristinarla o scegliere un&apos;altra cartella. Il percorso è indicato in «Attività di sincronizzazione».</translation>
    </message>
    <message>
        <source>Upgrade Quillmere</source>
        <translation>Aggiornamento di Quillmere</translation>
    </message>
    <message>
        <source>Add sync task...</source>
        <translation>Aggiungi attività...</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server. Ask the server administrator to mount it. See Shared folders for its name.</source>
        <translation>La cartella condivisa non è montata sul server. Chiedere all&apos;amministratore del server di montarla. Il nome della cartella è indicato in «Cartelle condivise».</translation>
    </message>
    <message>
        <source>The server sent an unexpected response. Upgrade Quillmere on this computer, and ask the server administrator to upgrade it on the server. Details are in ~/.Quillmere/log.</source>
        <translation>Il server ha inviato una risposta imprevista. Aggiornare Quillmere su questo computer e chiedere all&apos;amministratore del server di aggiornarlo sul server. I dettagli sono in «~/.Quillmere/log».</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Panoramica del server</translation>
    </message>
    <message>
        <source>Syncing stopped because of a problem. Click here for details.</source>
        <translation>La sincronizzazione si è interrotta a causa di un problema. Fare clic qui per i dettagli.</translation>
    </message>
    <message>
        <source>Enter a size of at most %1 MB.</source>
        <translation>Inserire una dimensione non superiore a %1&#xa0;MB.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Controllo dei file...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Tentativo di sincronizzazione...</translation>
    </message>
    <message>
        <source>Click Install to begin the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Fare clic su «Installa» per iniziare l&apos;installazione di [ProductName]. Fare clic su «Indietro» per rivedere le scelte o su «Annulla» per uscire dalla procedura guidata.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup was canceled</source>
        <translation>{\VerdanaBold13}Il programma di installazione di [ProductName] è stato annullato</translation>
    </message>
    <message>
        <source>The folder is not empty. Merge its files with those on the server, or choose another folder.</source>
        <translation>La cartella non è vuota. Unire i file che contiene a quelli sul server o scegliere un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Its files will appear when indexing is complete.</source>
        <translation>L&apos;indicizzazione di questa cartella è in corso. I file verranno visualizzati al termine.</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Unisci</translation>
    </message>
    <message>
        <source>You can open the files in this shared folder, but changes you make are not uploaded.</source>
        <translation>È possibile aprire i file in questa cartella condivisa, ma le modifiche apportate non vengono inviate al server.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Impostazioni di rete</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder. Choose another folder.</source>
        <translation>Questa cartella è già sincronizzata con un&apos;altra cartella condivisa. Scegliere un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>The server has no free disk space.</source>
        <translation>Lo spazio su disco del server è esaurito.</translation>
    </message>
    <message>
        <source>Relay by server ID</source>
        <translation>Relay tramite ID server</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Scegliere l&apos;operazione da eseguire.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup did not finish</source>
        <translation>{\VerdanaBold13}Il programma di installazione di [ProductName] non ha completato l&apos;operazione</translation>
    </message>
    <message>
        <source>Quillmere is already running.</source>
        <translation>Quillmere è già in esecuzione.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Ti diamo il benvenuto</translation>
    </message>
    <message>
        <source>Start Quillmere when I sign in to this computer</source>
        <translation>Avvia Quillmere all&apos;accesso a questo computer</translation>
    </message>
    <message>
        <source>All files from both folders are kept. If two versions of a file differ, both are kept under different names.</source>
        <translation>Tutti i file di entrambe le cartelle vengono mantenuti. Se due versioni di un file sono diverse, vengono mantenute entrambe con nomi diversi.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Ripara l&apos;installazione</translation>
    </message>
    <message>
        <source>Syncing turned on</source>
        <translation>Sincronizzazione attivata</translation>
    </message>
    <message>
        <source>Quillmere could not start. Restart the computer, then start Quillmere again. Details are in ~/.Quillmere/log.</source>
        <translation>Non è stato possibile avviare Quillmere. Riavviare il computer, quindi avviare di nuovo Quillmere. I dettagli sono in «~/.Quillmere/log».</translation>
    </message>
    <message>
        <source>Cancel [ProductName] setup?</source>
        <translation>Annullare il programma di installazione di [ProductName]?</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Continua comunque</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove [ProductName]</source>
        <translation>[DlgTitleFont]Modifica, riparazione o disinstallazione di [ProductName]</translation>
    </message>
    <message>
        <source>Quillmere is set up</source>
        <translation>Quillmere è configurato</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Impostazioni avanzate</translation>
    </message>
    <message>
        <source>Browse versions...</source>
        <translation>Sfoglia versioni...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]&amp;Modifica</translation>
    </message>
    <message>
        <source>This computer is disconnected from the server. Reconnect to continue syncing.</source>
        <translation>Questo computer è disconnesso dal server. Riconnetterlo per continuare la sincronizzazione.</translation>
    </message>
    <message>
        <source>Detecting...</source>
        <translation>Rilevamento...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Avviso sul certificato</translation>
    </message>
    <message>
        <source>The relay service cannot be reached. Check the internet connection, then try again.</source>
        <translation>Impossibile raggiungere il servizio di relay. Controllare la connessione a Internet, quindi riprovare.</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Disinstalla [ProductName] dal computer.</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Download di «%1»...</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fine</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Cartella in sola lettura</translation>
    </message>
    <message>
        <source>[DlgTitleFont]You canceled setup, and your computer was not changed.</source>
        <translation>[DlgTitleFont]Il programma di installazione è stato annullato e il computer non è stato modificato.</translation>
    </message>
    <message>
        <source>The port number is not valid. Enter a number from 1 to 65535.</source>
        <translation>Il numero di porta non è valido. Inserire un numero compreso tra 1 e 65535.</translation>
    </message>
    <message>
        <source>Quillmere cannot watch for changes on a network drive. Choose a folder on a local drive.</source>
        <translation>Quillmere non può monitorare le modifiche su un&apos;unità di rete. Scegliere una cartella su un&apos;unità locale.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Disinstalla il programma</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Connessione diretta</translation>
    </message>
    <message>
        <source>The drive on the server that holds this folder is not mounted. Ask the server administrator to mount it. See Sync tasks for the folder.</source>
        <translation>Sul server, l&apos;unità che contiene questa cartella non è montata. Chiedere all&apos;amministratore del server di montare l&apos;unità. La cartella è indicata in «Attività di sincronizzazione».</translation>
    </message>
    <message>
        <source>This version of Quillmere is already installed. Install it again?</source>
        <translation>Questa versione di Quillmere è già installata. Installarla di nuovo?</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server. Upgrade it, then try again.</source>
        <translation>Quillmere su questo computer è troppo vecchio per funzionare con il server. Aggiornarlo, quindi riprovare.</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer.</source>
        <translation>Quillmere sul server è troppo vecchio per funzionare con questo computer.</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Disattivato</translation>
    </message>
</context>
</TS>
