<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Bienvenue dans l’assistant d’installation de [ProductName]</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>Démarrer [ProductName] maintenant</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Dossiers partagés</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Tous les fichiers sont à jour.</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>Traitement en cours...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>L’assistant d’installation est prêt à commencer l’installation.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Mode de connexion</translation>
    </message>
    <message>
        <source>The local database is damaged. Disconnect from the server, then reconnect to rebuild the database. Details are in ~/.Quillmere/log.</source>
        <translation>La base de données locale est endommagée. Déconnectez cet ordinateur du serveur, puis reconnectez-le pour reconstruire la base de données. Les détails se trouvent dans «&#xa0;~/.Quillmere/log&#xa0;».</translation>
    </message>
    <message>
        <source>&amp;Close the applications and restart them after setup</source>
        <translation>&amp;Fermer les applications et les redémarrer après l’installation</translation>
    </message>
    <message>
        <source>The folder is a mount point. Choose a folder that is not a mount point.</source>
        <translation>Le dossier est un point de montage. Choisissez un dossier qui n’en est pas un.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Prêt à désinstaller [ProductName]</translation>
    </message>
    <message>
        <source>The server has been replaced. Click here to reconnect.</source>
        <translation>Le serveur a été remplacé. Cliquez ici pour reconnecter cet ordinateur.</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Nombre de fichiers en cours de synchronisation&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change, repair, or remove [ProductName]. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>L’assistant d’installation permet de modifier, de réparer ou de désinstaller [ProductName]. Cliquez sur «&#xa0;Suivant&#xa0;» pour continuer ou sur «&#xa0;Annuler&#xa0;» pour quitter l’assistant d’installation.</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Liste d’exclusion</translation>
    </message>
    <message>
        <source>Delete this share link?\nPeople who have the link will no longer be able to open the file.</source>
        <translation>Supprimer ce lien de partage&#xa0;?\nLes personnes qui disposent du lien ne pourront plus ouvrir le fichier.</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server.</source>
        <translation>Quillmere sur cet ordinateur est trop ancien pour fonctionner avec le serveur.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installation de [ProductName]</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Échec de l’authentification</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Test de la connexion...</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: it may have expired, belong to another server, or come from an unknown issuer. Others may be able to read the data you send. Continue?</source>
        <translation>Le certificat du serveur n’est pas approuvé&#xa0;: il peut avoir expiré, appartenir à un autre serveur ou provenir d’un émetteur inconnu. Des tiers pourraient lire les données que vous envoyez. Continuer&#xa0;?</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nouveau dossier partagé</translation>
    </message>
    <message>
        <source>About Quillmere</source>
        <translation>À propos de Quillmere</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done.</source>
        <translation>Vérifiez les paramètres ci-dessous, puis cliquez sur «&#xa0;Terminer&#xa0;».</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>I&amp;mprimer</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the removal.</source>
        <translation>L’assistant d’installation est prêt à commencer la désinstallation.</translation>
    </message>
    <message>
        <source>This computer is already connected to this server. Edit the existing connection, or enter another server.</source>
        <translation>Cet ordinateur est déjà connecté à ce serveur. Modifiez la connexion existante ou indiquez un autre serveur.</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Historique des téléchargements</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Check the network connection, then try again.</source>
        <translation>La connexion au serveur a été perdue. Vérifiez la connexion réseau, puis réessayez.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified.</source>
        <translation>Impossible de vérifier le certificat du serveur.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Utiliser une icône en noir et blanc dans la zone de notification</translation>
    </message>
    <message>
        <source>The files in this folder will be synced with the server.</source>
        <translation>Les fichiers de ce dossier seront synchronisés avec le serveur.</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>Le serveur proxy requiert une authentification</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Tâches de synchronisation</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Fichiers exclus</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Autorisation insuffisante</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer. Ask the server administrator to upgrade it.</source>
        <translation>Quillmere sur le serveur est trop ancien pour fonctionner avec cet ordinateur. Demandez à l’administrateur du serveur de le mettre à jour.</translation>
    </message>
    <message>
        <source>You can run setup again at any time. Click Finish to exit the Setup Wizard.</source>
        <translation>Vous pouvez relancer le programme d’installation à tout moment. Cliquez sur «&#xa0;Terminer&#xa0;» pour quitter l’assistant d’installation.</translation>
    </message>
    <message>
        <source>The connection to the server is unstable.</source>
        <translation>La connexion au serveur est instable.</translation>
    </message>
    <message>
        <source>A newer version of Quillmere is already installed. To install this version, remove the newer one first.</source>
        <translation>Une version plus récente de Quillmere est déjà installée. Pour installer cette version, désinstallez d’abord la plus récente.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Cliquez sur «&#xa0;Réparer&#xa0;» pour réparer l’installation de [ProductName]. Cliquez sur «&#xa0;Précédent&#xa0;» pour revoir vos choix ou sur «&#xa0;Annuler&#xa0;» pour quitter l’assistant d’installation.</translation>
    </message>
    <message>
        <source>Some settings have not been saved. Save them?</source>
        <translation>Certains paramètres n’ont pas été enregistrés. Les enregistrer&#xa0;?</translation>
    </message>
    <message>
        <source>Icon overlays on files</source>
        <translation>Icônes superposées sur les fichiers</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>This folder is already used by another sync program. Choose another folder to avoid conflicts.</source>
        <translation>Ce dossier est déjà utilisé par un autre programme de synchronisation. Choisissez un autre dossier pour éviter les conflits.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Version incompatible</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Changer de dossier de synchronisation</translation>
    </message>
    <message>
        <source>Enter a complete file name without a folder path, for example thumbs.db.</source>
        <translation>Saisissez un nom de fichier complet, sans chemin de dossier, par exemple «&#xa0;thumbs.db&#xa0;».</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Setup stopped because of an error. The changes it had made were undone.</source>
        <translation>[DlgTitleFont]Le programme d’installation s’est arrêté à cause d’une erreur. Les modifications qu’il avait effectuées ont été annulées.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>L’assistant d’installation va installer [ProductName] sur votre ordinateur. Cliquez sur «&#xa0;Suivant&#xa0;» pour continuer ou sur «&#xa0;Annuler&#xa0;» pour quitter l’assistant d’installation.</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Problème de synchronisation</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Lisez attentivement le contrat de licence suivant.</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Dossier non vide</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Use an encrypted connection (TLS)</source>
        <translation>Utiliser une connexion chiffrée (TLS)</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Certains fichiers à mettre à jour sont en cours d’utilisation.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>A new version of Quillmere is available. Click here to upgrade.</source>
        <translation>Une nouvelle version de Quillmere est disponible. Cliquez ici pour effectuer la mise à jour.</translation>
    </message>
    <message>
        <source>The download of %1 was canceled.</source>
        <translation>Le téléchargement de «&#xa0;%1&#xa0;» a été annulé.</translation>
    </message>
    <message>
        <source>The value you entered is not valid. Check it, then try again.</source>
        <translation>La valeur saisie n’est pas valide. Vérifiez-la, puis réessayez.</translation>
    </message>
    <message>
        <source>This file has no earlier versions yet. Change the file and let it sync to create one.</source>
        <translation>Ce fichier n’a pas encore de version antérieure. Modifiez-le et laissez-le se synchroniser pour en créer une.</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Déconnecter</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Quillmere is initializing...</source>
        <translation>Initialisation de Quillmere...</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Démarrer maintenant</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Suspendre la synchronisation</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Mode de fusion</translation>
    </message>
    <message>
        <source>Quillmere is ready.</source>
        <translation>Quillmere est prêt.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>This version could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>Impossible de télécharger cette version. Vérifiez la connexion au serveur, puis réessayez.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Application des paramètres...</translation>
    </message>
    <message>
        <source>Files excluded from syncing</source>
        <translation>Fichiers exclus de la synchronisation</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Date de création</translation>
    </message>
    <message>
        <source>The Quillmere service is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>Le service Quillmere est désactivé sur le serveur. Demandez à l’administrateur du serveur de l’activer.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Choose shared folders to sync</source>
        <translation>Choisissez les dossiers partagés à synchroniser</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]&amp;Désinstaller</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Envoi en cours...</translation>
    </message>
    <message>
        <source>To use selective sync, ask the server administrator to upgrade Quillmere on the server.</source>
        <translation>Pour utiliser la synchronisation sélective, demandez à l’administrateur du serveur de mettre à jour Quillmere sur le serveur.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Aucun paramètre n’a été modifié.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Fichiers en cours d’utilisation</translation>
    </message>
    <message>
        <source>Repairs errors in the installation of [ProductName] by restoring missing or damaged files and shortcuts.</source>
        <translation>Corrige les erreurs de l’installation de [ProductName] en restaurant les fichiers et les raccourcis manquants ou endommagés.</translation>
    </message>
    <message>
        <source>Excluded file extensions</source>
        <translation>Extensions de fichier exclues</translation>
    </message>
    <message>
        <source>Syncing is paused.</source>
        <translation>La synchronisation est suspendue.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome back to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Bon retour dans l’assistant d’installation de [ProductName]</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is not mounted. Mount the drive, then resume syncing. See Sync tasks for the folder.</source>
        <translation>Le lecteur qui contient le dossier de synchronisation n’est pas monté. Montez le lecteur, puis reprenez la synchronisation. Le dossier est indiqué sous «&#xa0;Tâches de synchronisation&#xa0;».</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full.</source>
        <translation>Le lecteur qui contient le dossier de synchronisation est plein.</translation>
    </message>
    <message>
        <source>Proxy server address</source>
        <translation>Adresse du serveur proxy</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorer</translation>
    </message>
    <message>
        <source>A folder with this name already exists on this computer. Merge its files with those on the server?</source>
        <translation>Un dossier portant ce nom existe déjà sur cet ordinateur. Fusionner ses fichiers avec ceux du serveur&#xa0;?</translation>
    </message>
    <message>
        <source>Quillmere keeps your files in sync between your computers and your server.</source>
        <translation>Quillmere assure la synchronisation de vos fichiers entre vos ordinateurs et votre serveur.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Modifier les fonctionnalités installées</translation>
    </message>
    <message>
        <source>Welcome to Quillmere</source>
        <translation>Bienvenue dans Quillmere</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Réparer</translation>
    </message>
    <message>
        <source>Upgrading Quillmere...</source>
        <translation>Mise à jour de Quillmere...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Mode de synchronisation</translation>
    </message>
    <message>
        <source>Enter a domain name, an IP address, or a server ID.</source>
        <translation>Saisissez un nom de domaine, une adresse IP ou un ID de serveur.</translation>
    </message>
    <message>
        <source>A share link could not be created for this file. Check the connection to the server, then try again.</source>
        <translation>Impossible de créer un lien de partage pour ce fichier. Vérifiez la connexion au serveur, puis réessayez.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>Files being synced: %1</source>
        <translation>Fichiers en cours de synchronisation&#xa0;: %1</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Reconnecter</translation>
    </message>
    <message>
        <source>Your files, in sync everywhere</source>
        <translation>Vos fichiers, synchronisés partout</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>The Setup Wizard is making the changes you chose.</source>
        <translation>L’assistant d’installation effectue les modifications demandées.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Langue du système</translation>
    </message>
    <message>
        <source>The folders and files you deselected will be removed from this computer. They will be kept on the server.</source>
        <translation>Les dossiers et les fichiers que vous avez désélectionnés seront supprimés de cet ordinateur. Ils seront conservés sur le serveur.</translation>
    </message>
    <message>
        <source>Setup made all the changes you chose. Click Finish to exit the Setup Wizard.</source>
        <translation>Le programme d’installation a effectué toutes les modifications demandées. Cliquez sur «&#xa0;Terminer&#xa0;» pour quitter l’assistant d’installation.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Cliquez sur «&#xa0;Désinstaller&#xa0;» pour désinstaller [ProductName] de votre ordinateur. Cliquez sur «&#xa0;Précédent&#xa0;» pour revoir vos choix ou sur «&#xa0;Annuler&#xa0;» pour quitter l’assistant d’installation.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Espace insuffisant</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Déconnecté</translation>
    </message>
    <message>
        <source>You have used all of your space on the server.</source>
        <translation>Vous avez utilisé tout votre espace sur le serveur.</translation>
    </message>
    <message>
        <source>Disconnect from the server?\nYour files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Déconnecter cet ordinateur du serveur&#xa0;?\nVos fichiers seront conservés sur cet ordinateur et sur le serveur, mais ils ne seront plus synchronisés.</translation>
    </message>
    <message>
        <source>The relay service has a problem. Try again later, or connect to the server by its IP address.</source>
        <translation>Le service de relais rencontre un problème. Réessayez plus tard ou connectez-vous au serveur par son adresse IP.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>ID du serveur</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Noms de fichier exclus</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Adresse du serveur</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Turned on</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full. Free some space on it to continue syncing.</source>
        <translation>Le lecteur qui contient le dossier de synchronisation est plein. Libérez-y de l’espace pour poursuivre la synchronisation.</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Dossiers à synchroniser</translation>
    </message>
    <message>
        <source>Choose sync folder</source>
        <translation>Choisissez le dossier de synchronisation</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <translation>Paramètres de connexion</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Synchronisation sélective</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>You have used all of your space on the server. Delete files you do not need, or ask the server administrator for more space.</source>
        <translation>Vous avez utilisé tout votre espace sur le serveur. Supprimez les fichiers dont vous n’avez pas besoin ou demandez davantage d’espace à l’administrateur du serveur.</translation>
    </message>
    <message>
        <source>After you start [ProductName], you can find it in the system tray.</source>
        <translation>Une fois [ProductName] démarré, vous le trouverez dans la zone de notification.</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open and restart the computer later</source>
        <translation>&amp;Laisser les applications ouvertes et redémarrer l’ordinateur plus tard</translation>
    </message>
    <message>
        <source>Use the following proxy server</source>
        <translation>Utiliser le serveur proxy suivant</translation>
    </message>
    <message>
        <source>This file was changed on this computer and on the server. Both copies are in the same folder under different names. Compare them, then keep the one you need.</source>
        <translation>Ce fichier a été modifié sur cet ordinateur et sur le serveur. Les deux copies se trouvent dans le même dossier sous des noms différents. Comparez-les, puis conservez celle dont vous avez besoin.</translation>
    </message>
    <message>
        <source>All your files on every computer, kept on your own server</source>
        <translation>Tous vos fichiers sur tous vos ordinateurs, conservés sur votre propre serveur</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Afficher les notifications sur le bureau</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Close them, then click Retry. To continue without closing them, click Ignore. To leave setup, click Exit.</source>
        <translation>Les applications suivantes utilisent des fichiers que le programme d’installation doit mettre à jour. Fermez-les, puis cliquez sur «&#xa0;Réessayer&#xa0;». Pour continuer sans les fermer, cliquez sur «&#xa0;Ignorer&#xa0;». Pour quitter le programme d’installation, cliquez sur «&#xa0;Quitter&#xa0;».</translation>
    </message>
    <message>
        <source>The server cannot be reached. Check the network connection and the server address, then try again.</source>
        <translation>Le serveur est injoignable. Vérifiez la connexion réseau et l’adresse du serveur, puis réessayez.</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Dossier de synchronisation local</translation>
    </message>
    <message>
        <source>Files that match an entry in this list are not synced.</source>
        <translation>Les fichiers qui correspondent à une entrée de cette liste ne sont pas synchronisés.</translation>
    </message>
    <message>
        <source>Edit connection...</source>
        <translation>Modifier la connexion...</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Choose whether setup should close them. If they stay open, you need to restart the computer to finish setup.</source>
        <translation>Les applications suivantes utilisent des fichiers que le programme d’installation doit mettre à jour. Indiquez s’il doit les fermer. Si elles restent ouvertes, vous devrez redémarrer l’ordinateur pour terminer l’installation.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair.</source>
        <translation>L’assistant d’installation est prêt à commencer la réparation.</translation>
    </message>
    <message>
        <source>Open Quillmere</source>
        <translation>Ouvrir Quillmere</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Veuillez redémarrer %1 pour appliquer les nouveaux paramètres de langue.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Suspendre</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Afficher les icônes superposées sur les fichiers exclus</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Chargement...</translation>
    </message>
    <message>
        <source>The limit of synced shared folders is reached: %1. Stop syncing a shared folder before you add another.</source>
        <translation>La limite de dossiers partagés synchronisés est atteinte&#xa0;: %1. Arrêtez la synchronisation d’un dossier partagé avant d’en ajouter un autre.</translation>
    </message>
    <message>
        <source>Remove this sync task?\nIts files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Supprimer cette tâche de synchronisation&#xa0;?\nSes fichiers seront conservés sur cet ordinateur et sur le serveur, mais ils ne seront plus synchronisés.</translation>
    </message>
    <message>
        <source>Starting Quillmere...</source>
        <translation>Démarrage de Quillmere...</translation>
    </message>
    <message>
        <source>Quillmere could not be upgraded. Your earlier version was kept. Restart the computer, then try again. Details are in ~/.Quillmere/log.</source>
        <translation>Impossible de mettre à jour Quillmere. Votre version précédente a été conservée. Redémarrez l’ordinateur, puis réessayez. Les détails se trouvent dans «&#xa0;~/.Quillmere/log&#xa0;».</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Exclure les noms qui commencent par un point</translation>
    </message>
    <message>
        <source>The server has no free disk space. Ask the server administrator to free some space.</source>
        <translation>Le serveur n’a plus d’espace disque disponible. Demandez à l’administrateur du serveur de libérer de l’espace.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]License agreement</source>
        <translation>[DlgTitleFont]Contrat de licence</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» a été téléchargé.</translation>
    </message>
    <message>
        <source>The versions of this file could not be listed. Check the connection to the server, then try again.</source>
        <translation>Impossible d’afficher la liste des versions de ce fichier. Vérifiez la connexion au serveur, puis réessayez.</translation>
    </message>
    <message>
        <source>Connected to the server.</source>
        <translation>Connexion au serveur établie.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup is complete</source>
        <translation>{\VerdanaBold13}Le programme d’installation de [ProductName] a terminé</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Réseau local</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Ne pas utiliser de serveur proxy</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Dossier partagé introuvable</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>Parvenor Quillmere</source>
        <translation>Parvenor Quillmere</translation>
    </message>
    <message>
        <source>%1 could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>Impossible de télécharger le fichier «&#xa0;%1&#xa0;». Vérifiez la connexion au serveur, puis réessayez.</translation>
    </message>
    <message>
        <source>Watching for file changes...</source>
        <translation>Surveillance des modifications de fichiers...</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Dossier partagé</translation>
    </message>
    <message>
        <source>Quillmere settings</source>
        <translation>Paramètres de Quillmere</translation>
    </message>
    <message>
        <source>The share link could not be deleted. Check the connection to the server, then try again.</source>
        <translation>Impossible de supprimer le lien de partage. Vérifiez la connexion au serveur, puis réessayez.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified: it may have expired, belong to another server, or come from an unknown issuer. Ask the server administrator to check the certificate.</source>
        <translation>Impossible de vérifier le certificat du serveur&#xa0;: il peut avoir expiré, appartenir à un autre serveur ou provenir d’un émetteur inconnu. Demandez à l’administrateur du serveur de contrôler le certificat.</translation>
    </message>
    <message>
        <source>This is not the server that this computer was connected to. Check the server address, or reconnect.</source>
        <translation>Ce serveur n’est pas celui auquel cet ordinateur était connecté. Vérifiez l’adresse du serveur ou reconnectez cet ordinateur.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] ne comporte aucune fonctionnalité modifiable séparément.</translation>
    </message>
    <message>
        <source>The address or port of the proxy server is missing. Enter both, then try again.</source>
        <translation>L’adresse ou le port du serveur proxy n’est pas renseigné. Saisissez les deux, puis réessayez.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>The user name is missing. Enter a user name.</source>
        <translation>Le nom d’utilisateur n’est pas renseigné. Saisissez un nom d’utilisateur.</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Supprimer le lien</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>J’&amp;accepte les termes du contrat de licence</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Mis à jour&#xa0;: %1</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Gérer les connexions</translation>
    </message>
    <message>
        <source>Connect to another server...</source>
        <translation>Se connecter à un autre serveur...</translation>
    </message>
    <message>
        <source>Show icon overlays</source>
        <translation>Afficher les icônes superposées</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Making changes to [ProductName]</source>
        <translation>[DlgTitleFont]Modification de [ProductName] en cours</translation>
    </message>
    <message>
        <source>Service turned off</source>
        <translation>Service désactivé</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchroniser</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder?\nThe files already on this computer will be kept.</source>
        <translation>Arrêter la synchronisation de ce dossier partagé&#xa0;?\nLes fichiers déjà présents sur cet ordinateur seront conservés.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installer</translation>
    </message>
    <message>
        <source>Files to exclude</source>
        <translation>Fichiers à exclure</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Détails de l’état</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>Je &amp;n’accepte pas les termes du contrat de licence</translation>
    </message>
    <message>
        <source>Something went wrong. Try again, and contact the server administrator if the problem continues. Details are in ~/.Quillmere/log.</source>
        <translation>Un problème est survenu. Réessayez et, si le problème persiste, contactez l’administrateur du serveur. Les détails se trouvent dans «&#xa0;~/.Quillmere/log&#xa0;».</translation>
    </message>
    <message>
        <source>Tray icons</source>
        <translation>Icônes de la zone de notification</translation>
    </message>
    <message>
        <source>The folder is read-only. Choose a folder you can write to.</source>
        <translation>Le dossier est en lecture seule. Choisissez un dossier dans lequel vous pouvez écrire.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Précédent</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Paramètres du proxy</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so Quillmere might not install completely. Continue?</source>
        <translation>Vous n’avez pas ouvert de session en tant qu’administrateur&#xa0;; Quillmere risque donc de ne pas s’installer complètement. Continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Use the tray icon at any time to see the sync status or change the settings.</source>
        <translation>L’icône de la zone de notification vous permet à tout moment de consulter l’état de la synchronisation ou de modifier les paramètres.</translation>
    </message>
    <message>
        <source>Share link created</source>
        <translation>Lien de partage créé</translation>
    </message>
    <message>
        <source>The user name or password is not correct. Check both, then try again.</source>
        <translation>Le nom d’utilisateur ou le mot de passe est incorrect. Vérifiez-les, puis réessayez.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Prêt à réparer [ProductName]</translation>
    </message>
    <message>
        <source>The shared folder %1 is now available. Click here to sync it.</source>
        <translation>Le dossier partagé «&#xa0;%1&#xa0;» est désormais disponible. Cliquez ici pour le synchroniser.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>État&#xa0;:</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Informations de connexion</translation>
    </message>
    <message>
        <source>Lets you choose which features are installed.</source>
        <translation>Permet de choisir les fonctionnalités à installer.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nom du dossier</translation>
    </message>
    <message>
        <source>Folder is a mount point</source>
        <translation>Le dossier est un point de montage</translation>
    </message>
    <message>
        <source>Choose another folder...</source>
        <translation>Choisir un autre dossier...</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Téléchargement uniquement</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Repair</source>
        <translation>[DlgTitleFont]&amp;Réparer</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Désinstaller</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Taille maximale des fichiers</translation>
    </message>
    <message>
        <source>Enter the server address and the account you use on the server.</source>
        <translation>Saisissez l’adresse du serveur et le compte que vous y utilisez.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Another server was found at the server address.</source>
        <translation>Un autre serveur a été détecté à l’adresse du serveur.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Connexion au serveur...</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Create share link</source>
        <translation>Créer un lien de partage</translation>
    </message>
    <message>
        <source>The user name or password was not accepted by the server. Edit the connection and enter them again.</source>
        <translation>Le serveur a refusé le nom d’utilisateur ou le mot de passe. Modifiez la connexion et saisissez-les de nouveau.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Fichiers mis à jour récemment</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Utiliser les paramètres de proxy du système</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Changer de dossier...</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Chemin du dossier</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Téléchargement en cours...</translation>
    </message>
    <message>
        <source>File locked</source>
        <translation>Fichier verrouillé</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Préparation...</translation>
    </message>
    <message>
        <source>Syncing files...</source>
        <translation>Synchronisation des fichiers...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Prêt à installer [ProductName]</translation>
    </message>
    <message>
        <source>Checking the user name and password...</source>
        <translation>Vérification du nom d’utilisateur et du mot de passe...</translation>
    </message>
    <message>
        <source>Wait while the Setup Wizard makes the changes to [ProductName]. This can take several minutes.</source>
        <translation>Patientez pendant que l’assistant d’installation apporte les modifications à [ProductName]. Cette opération peut prendre plusieurs minutes.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gérer</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>The server ID is not valid. Check the server ID, then try again.</source>
        <translation>L’ID du serveur n’est pas valide. Vérifiez-le, puis réessayez.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Ouvrir le dossier de synchronisation</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Au double-clic sur l’icône de la zone de notification</translation>
    </message>
    <message>
        <source>Syncing could not be turned on for this shared folder. Check your permissions on the server, then try again.</source>
        <translation>Impossible d’activer la synchronisation de ce dossier partagé. Vérifiez vos autorisations sur le serveur, puis réessayez.</translation>
    </message>
    <message>
        <source>File sharing over the relay is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>Le partage de fichiers par relais est désactivé sur le serveur. Demandez à l’administrateur du serveur de l’activer.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Reprendre la synchronisation</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>The share link was copied to the clipboard.</source>
        <translation>Le lien de partage a été copié dans le presse-papiers.</translation>
    </message>
    <message>
        <source>The local sync folder was not found. Restore the folder, or choose another folder. See Sync tasks for its path.</source>
        <translation>Le dossier de synchronisation local est introuvable. Restaurez-le ou choisissez un autre dossier. Son chemin est indiqué sous «&#xa0;Tâches de synchronisation&#xa0;».</translation>
    </message>
    <message>
        <source>Upgrade Quillmere</source>
        <translation>Mise à jour de Quillmere</translation>
    </message>
    <message>
        <source>Add sync task...</source>
        <translation>Ajouter une tâche...</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server. Ask the server administrator to mount it. See Shared folders for its name.</source>
        <translation>Le dossier partagé n’est pas monté sur le serveur. Demandez à l’administrateur du serveur de le monter. Le nom du dossier est indiqué sous «&#xa0;Dossiers partagés&#xa0;».</translation>
    </message>
    <message>
        <source>The server sent an unexpected response. Upgrade Quillmere on this computer, and ask the server administrator to upgrade it on the server. Details are in ~/.Quillmere/log.</source>
        <translation>Le serveur a envoyé une réponse inattendue. Mettez à jour Quillmere sur cet ordinateur et demandez à l’administrateur du serveur de le mettre à jour sur le serveur. Les détails se trouvent dans «&#xa0;~/.Quillmere/log&#xa0;».</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Vue d’ensemble du serveur</translation>
    </message>
    <message>
        <source>Syncing stopped because of a problem. Click here for details.</source>
        <translation>Un problème a interrompu la synchronisation. Cliquez ici pour plus de détails.</translation>
    </message>
    <message>
        <source>Enter a size of at most %1 MB.</source>
        <translation>Saisissez une taille inférieure ou égale à %1&#xa0;Mo.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Vérification des fichiers...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Tentative de synchronisation...</translation>
    </message>
    <message>
        <source>Click Install to begin the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Cliquez sur «&#xa0;Installer&#xa0;» pour commencer l’installation de [ProductName]. Cliquez sur «&#xa0;Précédent&#xa0;» pour revoir vos choix ou sur «&#xa0;Annuler&#xa0;» pour quitter l’assistant d’installation.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup was canceled</source>
        <translation>{\VerdanaBold13}Le programme d’installation de [ProductName] a été annulé</translation>
    </message>
    <message>
        <source>The folder is not empty. Merge its files with those on the server, or choose another folder.</source>
        <translation>Le dossier n’est pas vide. Fusionnez ses fichiers avec ceux du serveur ou choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Its files will appear when indexing is complete.</source>
        <translation>Ce dossier est en cours d’indexation. Ses fichiers s’afficheront une fois l’indexation terminée.</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nom d’utilisateur</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Fusionner</translation>
    </message>
    <message>
        <source>You can open the files in this shared folder, but changes you make are not uploaded.</source>
        <translation>Vous pouvez ouvrir les fichiers de ce dossier partagé, mais les modifications que vous y apportez ne sont pas envoyées au serveur.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Paramètres réseau</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder. Choose another folder.</source>
        <translation>Ce dossier est déjà synchronisé avec un autre dossier partagé. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>The server has no free disk space.</source>
        <translation>Le serveur n’a plus d’espace disque disponible.</translation>
    </message>
    <message>
        <source>Relay by server ID</source>
        <translation>Relais par ID de serveur</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Choisissez l’opération à effectuer.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup did not finish</source>
        <translation>{\VerdanaBold13}Le programme d’installation de [ProductName] n’a pas abouti</translation>
    </message>
    <message>
        <source>Quillmere is already running.</source>
        <translation>Quillmere est déjà en cours d’exécution.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>Start Quillmere when I sign in to this computer</source>
        <translation>Démarrer Quillmere à l’ouverture de ma session sur cet ordinateur</translation>
    </message>
    <message>
        <source>All files from both folders are kept. If two versions of a file differ, both are kept under different names.</source>
        <translation>Tous les fichiers des deux dossiers sont conservés. Si deux versions d’un fichier diffèrent, elles sont toutes deux conservées sous des noms différents.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Réparer l’installation</translation>
    </message>
    <message>
        <source>Syncing turned on</source>
        <translation>Synchronisation activée</translation>
    </message>
    <message>
        <source>Quillmere could not start. Restart the computer, then start Quillmere again. Details are in ~/.Quillmere/log.</source>
        <translation>Impossible de démarrer Quillmere. Redémarrez l’ordinateur, puis relancez Quillmere. Les détails se trouvent dans «&#xa0;~/.Quillmere/log&#xa0;».</translation>
    </message>
    <message>
        <source>Cancel [ProductName] setup?</source>
        <translation>Annuler le programme d’installation de [ProductName]&#xa0;?</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Continuer malgré tout</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove [ProductName]</source>
        <translation>[DlgTitleFont]Modifier, réparer ou désinstaller [ProductName]</translation>
    </message>
    <message>
        <source>Quillmere is set up</source>
        <translation>Quillmere est configuré</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Paramètres avancés</translation>
    </message>
    <message>
        <source>Browse versions...</source>
        <translation>Parcourir les versions...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]&amp;Modifier</translation>
    </message>
    <message>
        <source>This computer is disconnected from the server. Reconnect to continue syncing.</source>
        <translation>Cet ordinateur est déconnecté du serveur. Reconnectez-le pour poursuivre la synchronisation.</translation>
    </message>
    <message>
        <source>Detecting...</source>
        <translation>Détection...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Avertissement de certificat</translation>
    </message>
    <message>
        <source>The relay service cannot be reached. Check the internet connection, then try again.</source>
        <translation>Le service de relais est injoignable. Vérifiez la connexion Internet, puis réessayez.</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Désinstalle [ProductName] de votre ordinateur.</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Téléchargement de «&#xa0;%1&#xa0;»...</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Terminer</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Dossier en lecture seule</translation>
    </message>
    <message>
        <source>[DlgTitleFont]You canceled setup, and your computer was not changed.</source>
        <translation>[DlgTitleFont]Vous avez annulé le programme d’installation et votre ordinateur n’a pas été modifié.</translation>
    </message>
    <message>
        <source>The port number is not valid. Enter a number from 1 to 65535.</source>
        <translation>Le numéro de port n’est pas valide. Saisissez un nombre compris entre 1 et 65535.</translation>
    </message>
    <message>
        <source>Quillmere cannot watch for changes on a network drive. Choose a folder on a local drive.</source>
        <translation>Quillmere ne peut pas surveiller les modifications sur un lecteur réseau. Choisissez un dossier sur un lecteur local.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Désinstaller le programme</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Connexion directe</translation>
    </message>
    <message>
        <source>The drive on the server that holds this folder is not mounted. Ask the server administrator to mount it. See Sync tasks for the folder.</source>
        <translation>Sur le serveur, le lecteur qui contient ce dossier n’est pas monté. Demandez à l’administrateur du serveur de monter le lecteur. Le dossier est indiqué sous «&#xa0;Tâches de synchronisation&#xa0;».</translation>
    </message>
    <message>
        <source>This version of Quillmere is already installed. Install it again?</source>
        <translation>Cette version de Quillmere est déjà installée. La réinstaller&#xa0;?</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server. Upgrade it, then try again.</source>
        <translation>Quillmere sur cet ordinateur est trop ancien pour fonctionner avec le serveur. Mettez-le à jour, puis réessayez.</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer.</source>
        <translation>Quillmere sur le serveur est trop ancien pour fonctionner avec cet ordinateur.</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Désactivé</translation>
    </message>
</context>
</TS>
